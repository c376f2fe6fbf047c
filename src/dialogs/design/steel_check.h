#pragma once
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "tools/shape_table.h"

class CAiscDesign;

// The steel beam-column check as the dialog and the command line run it: the member's data
// in the dialog's units (kip, kip-ft, ft, ksi), the checks of that data with their messages,
// and the run of the design library over the load sets with its report.
namespace design {

struct SteelMember {
  std::string shape;
  double fy = 50;
  double length = 10, lux = 10, luy = 10, luz = 10;  // ft
  double kx = 1, ky = 1, kz = 1;
  double cb = 1;
  double lb = 10;         // ft
  double connector = 0;   // ft
  bool magnify = false;   // "Consider Moment Magnification"
  bool direct = false;    // "Use Direct Design Method"
};

struct SteelLoadSet {
  double Pu = 0, Mux = 0, Muy = 0, Vux = 0, Vuy = 0, Cmx = 1, Cmy = 1;
};

// The eight result columns of one load set, in the grid's order.
struct SteelResult {
  double phiPn = 0, phiMnx = 0, phiMny = 0, phiVnx = 0, phiVny = 0, B1x = 1, B1y = 1, ratio = 0;
};

// The member's fields in the order they are checked.
enum class SteelField { Fy, Length, Lux, Kx, Luy, Ky, Luz, Kz, Lb, Cb, Connector };

struct SteelFailure {
  std::string message;
  SteelField field = SteelField::Fy;
  int loadSet = 0;  // 1-based, for a failure of a load set
};

std::optional<SteelFailure> CheckGeometryAndMaterial(const SteelMember& member);
std::optional<SteelFailure> CheckLoads(const std::vector<SteelLoadSet>& loads);

// One load set from its seven cells in the grid's order (Pu, Mux, Muy, Vux, Vuy, Cmx, Cmy):
// an empty force reads as 0, an empty Cm as 1.0; a cell that is no finite number is refused
// with its message ("column" is the 0-based cell).
std::optional<SteelLoadSet> ParseLoadSet(const std::vector<std::string>& cells, int loadSet, std::string* message,
                                         int* column = nullptr);

// The report file the check writes and "Show Procedure" opens.
inline constexpr const char* kSteelReportFile = "kStrand.htm";

// Writes the document's head and the header block of the member.
void WriteSteelReportHead(std::ostream& out, const SteelMember& member, int loadSets);
void WriteSteelReportFoot(std::ostream& out);

// Hands the member to a design object as the dialog does (lengths in inches) and sets its report.
void SetUpDesign(CAiscDesign& design, const SteelMember& member, std::ostream* report);

// Runs the design library for each load set with the shape library given (the current one
// when null); writes each load set's steps when `report` is set. False with "Invalid AISC
// section" when the library has no such shape.
bool RunSteelCheck(const SteelMember& member, const std::vector<SteelLoadSet>& loads, std::ostream* report,
                   std::vector<SteelResult>& results, std::string* message,
                   const tools::AiscLibrary* library = nullptr);

}  // namespace design
