#include "model/convert_units.h"

#include <cmath>

#include "model/document_sections.h"
#include "tools/fm_exception.h"
#include "tools/format.h"

namespace model {
namespace {

bool Finite(double a, double b, double c) { return std::isfinite(a) && std::isfinite(b) && std::isfinite(c); }

[[noreturn]] void RefuseTooLarge(const char* what, long long id) {
  throw fmException(tools::Format("The units were not changed: %s %lld would become larger than a number can hold "
                                  "in the new units.",
                                  what, id));
}

}  // namespace

void ChangeDocumentUnits(ModelDocument& doc, const fmUnit& to) {
  double factors[fmUnit::QuantityCount];
  GetConversionFactors(factors, doc.units, to);
  const auto factor = [&](fmUnit::Quantity q) { return to.convert[q] ? factors[q] : 1.0; };

  // Everything is checked before anything changes: a model with one infinite coordinate
  // could be saved but never opened again.
  const double length = factor(fmUnit::Length);
  if (length != 1.0)
    for (const fmNd& nd : doc.nodes)
      if (!Finite(nd.x * length, nd.y * length, nd.z * length)) RefuseTooLarge("node", nd.id);

  double effective[fmUnit::QuantityCount];
  for (int q = 0; q < fmUnit::QuantityCount; ++q) effective[q] = factor(static_cast<fmUnit::Quantity>(q));
  ModelDocument props;
  props.materials = doc.materials;
  props.sections = doc.sections;
  props.thicknesses = doc.thicknesses;
  ConvertPropertyUnits(props, effective);
  for (const fmMat& m : props.materials)
    if (!Finite(m.E, m.fc, m.fy) || !Finite(m.fys, m.density, m.Tc)) RefuseTooLarge("material", m.id);
  for (const fmSect& s : props.sections)
    if (!Finite(s.A, s.Ay, s.Az) || !Finite(s.Iz, s.Iy, s.J) || !Finite(s.b, s.d, s.tf) || !std::isfinite(s.tw))
      RefuseTooLarge("section", s.id);
  for (const fmThick& t : props.thicknesses)
    if (!std::isfinite(t.thickness)) RefuseTooLarge("thickness", t.id);

  std::vector<fmCaseLoad> loads = doc.caseLoads;
  ConvertCaseLoadUnits(loads, effective);
  if (!CaseLoadsFinite(loads))
    throw fmException("The units were not changed: a load would become larger than a number can hold in the new units.");

  ModelDocument boundaries;
  boundaries.supports = doc.supports;
  boundaries.nodalSprings = doc.nodalSprings;
  boundaries.coupledSprings = doc.coupledSprings;
  boundaries.lineSprings = doc.lineSprings;
  boundaries.surfaceSprings = doc.surfaceSprings;
  boundaries.diaphragms = doc.diaphragms;
  ConvertBoundaryUnits(boundaries, effective);
  if (!BoundariesFinite(boundaries))
    throw fmException(
        "The units were not changed: a spring or prescribed displacement would become larger than a number can hold in "
        "the new units.");

  if (length != 1.0)
    for (fmNd& nd : doc.nodes) {
      nd.x *= length;
      nd.y *= length;
      nd.z *= length;
    }
  doc.materials = std::move(props.materials);
  doc.sections = std::move(props.sections);
  doc.thicknesses = std::move(props.thicknesses);
  doc.caseLoads = std::move(loads);
  doc.supports = std::move(boundaries.supports);
  doc.nodalSprings = std::move(boundaries.nodalSprings);
  doc.coupledSprings = std::move(boundaries.coupledSprings);
  doc.lineSprings = std::move(boundaries.lineSprings);
  doc.surfaceSprings = std::move(boundaries.surfaceSprings);
  doc.diaphragms = std::move(boundaries.diaphragms);
  doc.units = to;
  doc.units.convert.fill(0);  // the flags ask for one conversion; they are not a setting
}

}  // namespace model
