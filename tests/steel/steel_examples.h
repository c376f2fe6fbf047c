#pragma once
#include <memory>
#include <string>

#include "steel/steel_design_manager.h"
#include "tools/fm_exception.h"
#include "tools/shape_table.h"

// The shape library the member check is tested with: the bundled one.
namespace steel_test {

inline const tools::AiscLibrary& Bundled() {
  static const tools::AiscLibrary lib = tools::AiscLibrary::LoadFrom(NORVANE_SOURCE_DATA_DIR);
  return lib;
}

// A member of the given shape with the lengths in feet, as the dialog passes them (in inches).
struct Member {
  std::string shape;
  double Fy = 50;
  double Lx = 0, Ly = 0, Lz = 0, Lb = 0;  // ft
  double Kx = 1, Ky = 1, Kz = 1, Cb = 1;
  double a = 0;  // ft
  bool magnify = false, direct = false;
};

struct Loads {
  double Pu = 0, Mux = 0, Muy = 0, Vux = 0, Vuy = 0, Cmx = 1, Cmy = 1;
};

std::unique_ptr<CAiscDesign> Check(const tools::AiscLibrary& library, const Member& m, const Loads& l = {},
                                   std::ostream* report = nullptr);

}  // namespace steel_test
