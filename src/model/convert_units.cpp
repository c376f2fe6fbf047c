#include "model/convert_units.h"

#include "model/document_sections.h"

namespace model {

void ChangeDocumentUnits(ModelDocument& doc, const fmUnit& to) {
  double factors[fmUnit::QuantityCount];
  GetConversionFactors(factors, doc.units, to);
  const auto factor = [&](fmUnit::Quantity q) { return to.convert[q] ? factors[q] : 1.0; };

  const double length = factor(fmUnit::Length);
  if (length != 1.0)
    for (fmNd& nd : doc.nodes) {
      nd.x *= length;
      nd.y *= length;
      nd.z *= length;
    }

  double effective[fmUnit::QuantityCount];
  for (int q = 0; q < fmUnit::QuantityCount; ++q) effective[q] = factor(static_cast<fmUnit::Quantity>(q));
  ConvertPropertyUnits(doc, effective);

  doc.units = to;
  doc.units.convert.fill(0);  // the flags ask for one conversion; they are not a setting
}

}  // namespace model
