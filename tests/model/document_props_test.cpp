#include <gtest/gtest.h>

#include <tuple>

#include "model/convert_units.h"
#include "model/document_helpers.h"
#include "tools/fm_exception.h"

using namespace doc_test;

TEST(PropertyTables, RoundTripKeepsEveryField) {
  model::ModelDocument doc;
  fmSect s(3);
  s.SetLabel("W14X90");
  s.A = 26.5, s.Ay = 6.16, s.Az = 17.16, s.Iz = 999, s.Iy = 362, s.J = 4.06, s.reserved = 7;
  s.b = 14.5, s.d = 14, s.tf = 0.71, s.tw = 0.44;
  fmMat m(1);
  m.label = "Steel", m.E = 29000, m.nu = 0.3, m.density = 0.000283, m.Tc = 6.5e-6, m.fc = 3, m.fy = 50, m.fys = 65;
  fmThick t(2);
  t.label = "Slab", t.thickness = 8;
  doc.sections = {s}, doc.materials = {m}, doc.thicknesses = {t};
  const auto back = RoundTrip(doc);
  EXPECT_EQ(std::tie(back.sections, back.materials, back.thicknesses),
            std::tie(doc.sections, doc.materials, doc.thicknesses));
}

TEST(PropertyTables, MissingStrengthsDefaultInTheDocumentsUnits) {
  // English units: modulus in ksi, so the psi defaults arrive as 3, 60 and 60.
  const auto doc = Parse(R"(, "materials": [{"label": "M", "E": 1, "nu": 0.2, "density": 0, "Tc": 1e-5}])");
  ASSERT_EQ(doc.materials.size(), 1u);
  EXPECT_EQ(std::tuple(doc.materials[0].fc, doc.materials[0].fy, doc.materials[0].fys), std::tuple(3.0, 60.0, 60.0));
}

TEST(PropertyTables, FaultsNameTheirPlaceAndReason) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(, "sections": [{"label": "S", "A": "x", "Iz": 2, "Iy": 3, "J": 4}])", "/sections/0/A: expected a number"},
      {R"(, "sections": [{"A": 1, "Iz": 2, "Iy": 3, "J": 4}])", "/sections/0: missing \"label\""},
      {R"(, "thicknesses": [{"label": "T"}])", "/thicknesses/0: missing \"thickness\""},
  };
  for (const auto& [body, refusal] : cases) EXPECT_EQ(Refusal(body), refusal) << body;
}

TEST(PropertyTables, LongLabelsAreCutWithoutSplittingACharacter) {
  std::string label;
  for (int i = 0; i < 130; ++i) label += "\xC3\xA9";  // é
  fmSect s;
  s.SetLabel(label);
  EXPECT_EQ(s.label.size(), 127u * 2);
}

TEST(DocumentUnits, ChangingUnitsConvertsOnlyWhatIsAskedFor) {
  model::ModelDocument doc;  // English: length ft, modulus ksi, density lb/ft^3, temperature F
  doc.nodes = {{1, 0, 10.0, 0.0, -1.0}};
  fmSect s(1);
  fmMat m(1);
  s.Iz = 1, m.E = 1, m.density = 1, m.Tc = 1;
  doc.sections = {s}, doc.materials = {m};
  fmUnit to = doc.units;
  to.unit[fmUnit::Length] = 0;          // in
  to.unit[fmUnit::Modulus] = 69;        // psi
  to.unit[fmUnit::WeightDensity] = 85;  // lb/in^3
  to.unit[fmUnit::Temperature] = 104;   // C

  model::ModelDocument kept = doc;  // no convert flags: the numbers stay and are read in the new units
  model::ChangeDocumentUnits(kept, to);
  EXPECT_EQ(kept.nodes[0].x, 10.0);
  EXPECT_EQ(kept.units.unit, to.unit);

  to.convert.fill(1);
  model::ChangeDocumentUnits(doc, to);
  EXPECT_DOUBLE_EQ(doc.nodes[0].z, -12);
  EXPECT_DOUBLE_EQ(doc.sections[0].Iz, 20736);
  EXPECT_DOUBLE_EQ(doc.materials[0].E, 1000);
  EXPECT_NEAR(doc.materials[0].density, 1.0 / 1728, 1e-15);
  EXPECT_NEAR(doc.materials[0].Tc, 1.8, 1e-12);
  EXPECT_EQ(doc.units.convert[fmUnit::Length], 0) << "the flag asks for one conversion and is not kept";
}

TEST(DocumentUnits, AValueTooLargeForTheNewUnitsRefusesTheWholeChange) {
  model::ModelDocument doc;  // English: length ft
  doc.nodes = {{1, 0, 1.0, 0.0, 0.0}, {46, 0, 1e308, 0.0, 0.0}};
  doc.sections = {fmSect(1)};
  doc.sections[0].Iz = 1;
  fmUnit to = doc.units;
  to.unit[fmUnit::Length] = 0;  // in
  to.convert.fill(1);
  const model::ModelDocument before = doc;
  try {
    model::ChangeDocumentUnits(doc, to);
    FAIL() << "1e308 ft converted to inches";
  } catch (const fmException& e) {
    EXPECT_STREQ(e.what(), "The units were not changed: node 46 would become larger than a number can hold in the "
                           "new units.");
  }
  EXPECT_TRUE(doc.nodes == before.nodes && doc.sections == before.sections && doc.units == before.units);
}
