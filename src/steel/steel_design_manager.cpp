#include "steel/steel_design_manager.h"

#include <string>

CSteelDesignManager* CSteelDesignManager::Instance() {
  static CSteelDesignManager manager;
  return &manager;
}

CAiscDesign* CSteelDesignManager::CreateAiscDesign(const tools::AiscLibrary& library, std::string_view shape) {
  const int index = library.Find(shape);
  if (index < 0) return nullptr;
  const tools::fmSect_AISC& s = library.at(static_cast<size_t>(index));
  const tools::fmSect_AISC* single = nullptr;
  if (s.type == "2L") {
    const int k = library.Find(tools::SingleAngleLabel(s.label));
    if (k >= 0) single = &library.at(static_cast<size_t>(k));
  }
  auto section = steel::MakeSection(s, single);
  if (!section) return nullptr;
  return new CAiscDesign(std::move(*section));
}

CAiscDesign* CSteelDesignManager::CreateAiscDesign(std::string_view shape) {
  const tools::AiscLibrary* library = tools::CurrentAiscLibrary();
  return library ? CreateAiscDesign(*library, shape) : nullptr;
}

CAiscDesign* CSteelDesignManager::CreateAiscDesign(const wchar_t* shape) {
  // Shape labels are ASCII; any other character cannot name a shape.
  std::string label;
  for (; shape && *shape; ++shape) {
    if (*shape < 0x20 || *shape > 0x7E) return nullptr;
    label.push_back(static_cast<char>(*shape));
  }
  return CreateAiscDesign(std::string_view(label));
}

void CSteelDesignManager::DeleteAiscDesign(CAiscDesign* design) { delete design; }
