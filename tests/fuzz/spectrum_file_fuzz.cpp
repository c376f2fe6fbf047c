// The response spectrum file: any text is read or refused with fmException naming a line;
// what is read writes and reads back unchanged, with names a spreadsheet would not run.
#include <cstdint>
#include <string>

#include "fuzz/fuzz_check.h"
#include "model/response_spectrum_manager.h"
#include "tools/fm_exception.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<fmResponseSpectrum> spectra;
  try {
    spectra = model::ParseSpectrumFile(TextOf(data, size));
  } catch (const fmException& e) {
    Require(std::string_view(e.what()).starts_with("line "), "a refusal names its line");
    return 0;
  }
  for (const fmResponseSpectrum& s : spectra) Require(model::CheckSpectrumName(s.name).empty(), "names are acceptable");
  Require(model::ParseSpectrumFile(model::SerializeSpectrumFile(spectra)) == spectra,
          "a spectrum file writes and reads back unchanged");
  return 0;
}
