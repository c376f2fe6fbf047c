#include "model/document_sections.h"

namespace model {

void ReadSpectrumSettings(const JsonReader& root, ModelDocument& doc) {
  doc.spectrumAnalysis = {};
  if (!root.Has("responseSpectrumAnalysis")) return;
  const JsonReader r = root.Member("responseSpectrumAnalysis");
  r.RequireObject();
  fmResponseSpectrumSettings& s = doc.spectrumAnalysis;
  s.enabled = r.Bool("enabled", false);
  // Names and the combination are kept as written: the dialog and the analysis say which
  // one is no longer valid, and the user chooses again.
  if (r.Has("spectra")) {
    const JsonReader names = r.Member("spectra");
    if (names.ArraySize() != 3) names.Fail("expected 3 names, for X, Y and Z");
    for (size_t d = 0; d < 3; ++d) {
      if (!names.At(d).value().is_string()) names.At(d).Fail("expected a text");
      s.spectrum[d] = names.At(d).value().get<std::string>();
    }
  }
  s.combination = r.String("combination", "SRSS");
  s.dampingRatio = r.Double("dampingRatio", 0.05);
  if (r.Has("factors")) {
    const JsonReader f = r.Member("factors");
    if (f.ArraySize() != 3) f.Fail("expected 3 factors, for X, Y and Z");
    for (size_t d = 0; d < 3; ++d) {
      if (!f.At(d).value().is_number()) f.At(d).Fail("expected a number");
      s.factor[d] = f.At(d).value().get<double>();
    }
  }
}

void WriteSpectrumSettings(const ModelDocument& doc, nlohmann::ordered_json& root) {
  const fmResponseSpectrumSettings& s = doc.spectrumAnalysis;
  if (s == fmResponseSpectrumSettings{}) return;  // documents without the analysis stay as they were
  root["responseSpectrumAnalysis"] = {{"enabled", s.enabled},
                                      {"spectra", s.spectrum},
                                      {"combination", s.combination},
                                      {"dampingRatio", s.dampingRatio},
                                      {"factors", s.factor}};
}

}  // namespace model
