#include <gtest/gtest.h>

#include <limits>

#include "model/document_helpers.h"
#include "model/response_spectrum_settings.h"

using namespace doc_test;
using F = model::SpectrumSettingsField;

namespace {

fmResponseSpectrumSettings Valid() {
  fmResponseSpectrumSettings s;
  s.spectrum = {"Site", "site", "Code"};
  return s;
}

const std::vector<fmResponseSpectrum> kSpectra = {{"Site", {{0, 1}}}, {"Code", {{0, 1}}}};

}  // namespace

// Each refusal in its turn: a case breaks one rule and every rule before it holds.
TEST(SpectrumSettings, RefusalsInTheirOrder) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  const struct {
    void (*change)(fmResponseSpectrumSettings&);
    const char* message;
    F field;
  } cases[] = {
      {[](auto& s) { s.spectrum[2] = "Gone"; }, "Invalid spectrum is specified", F::Spectrum},
      {[](auto& s) { s.spectrum[0] = ""; s.combination = "CQC"; }, "Invalid spectrum is specified", F::Spectrum},
      {[](auto& s) { s.combination = "srss"; }, "Invalid spectrum combination method is specified", F::Combination},
      {[](auto& s) { s.dampingRatio = 1.0; }, "Critical damping ratio must be in the range of [0.0, 1.0)", F::Damping},
      {[](auto& s) { s.dampingRatio = kNaN; }, "Critical damping ratio must be in the range of [0.0, 1.0)", F::Damping},
      {[](auto& s) { s.factor[0] = 1.01; }, "Direction-X contribution factor must be in the range of [0.0, 1.0]", F::FactorX},
      {[](auto& s) { s.factor[2] = kNaN; }, "Direction-Z contribution factor must be in the range of [0.0, 1.0]", F::FactorZ},
      {[](auto& s) { s.factor = {0, 0, 0}; }, "Directional contribution factors cannot be all zeros.", F::Factors},
  };
  for (const auto& c : cases) {
    fmResponseSpectrumSettings s = Valid();
    c.change(s);
    const model::SpectrumSettingsCheck check = model::CheckSpectrumSettings(s, kSpectra);
    EXPECT_EQ(check.message, c.message);
    EXPECT_EQ(check.field, c.field) << c.message;
  }
  fmResponseSpectrumSettings edges = Valid();
  edges.combination = "ABSSUM";
  edges.dampingRatio = 0.0;
  edges.factor = {0, 1, 0};
  EXPECT_TRUE(model::CheckSpectrumSettings(edges, kSpectra).ok());
  EXPECT_EQ(model::CheckSpectrumSettings(Valid(), kSpectra).direction, -1);
  fmResponseSpectrumSettings y = Valid();
  y.spectrum[1] = "Other";
  EXPECT_EQ(model::CheckSpectrumSettings(y, kSpectra).direction, 1);
}

TEST(SpectrumSettings, KeptInTheModelDocument) {
  model::ModelDocument doc;
  EXPECT_EQ(model::SerializeModelDocument(doc).find("responseSpectrumAnalysis"), std::string::npos)
      << "a model without the analysis is written as before";
  doc.spectrumAnalysis = {true, {"Site", "A name the file no longer holds", ""}, "ABSSUM", 0.02, {1, 0.3, 0}};
  EXPECT_EQ(RoundTrip(doc).spectrumAnalysis, doc.spectrumAnalysis);
  EXPECT_EQ(Parse("").spectrumAnalysis, fmResponseSpectrumSettings{});

  const std::pair<const char*, const char*> faults[] = {
      {R"(, "responseSpectrumAnalysis": {"spectra": ["A", "B"]})", "/responseSpectrumAnalysis/spectra: expected 3 names, for X, Y and Z"},
      {R"(, "responseSpectrumAnalysis": {"factors": [1, "x", 0]})", "/responseSpectrumAnalysis/factors/1: expected a number"},
      {R"(, "responseSpectrumAnalysis": {"enabled": 1})", "/responseSpectrumAnalysis/enabled: expected true or false"},
  };
  for (const auto& [body, refusal] : faults) EXPECT_EQ(Refusal(body), refusal) << body;
}
