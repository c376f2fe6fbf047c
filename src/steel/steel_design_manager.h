#pragma once
#include <string_view>

#include "steel/aisc_design.h"
#include "tools/shape_table.h"

// Creates the design objects of the member check from the steel shape library in use.
class CSteelDesignManager {
 public:
  static CSteelDesignManager* Instance();

  // A new design object for the shape with this label, or null for an unknown shape.
  CAiscDesign* CreateAiscDesign(const wchar_t* shape);
  CAiscDesign* CreateAiscDesign(std::string_view shape);
  // The same from a given library (tests, the command line).
  static CAiscDesign* CreateAiscDesign(const tools::AiscLibrary& library, std::string_view shape);
  void DeleteAiscDesign(CAiscDesign* design);

 private:
  CSteelDesignManager() = default;
};
