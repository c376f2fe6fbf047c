#include "apps/host/HostSettings.h"

#include <QSettings>
#include <QStringList>

#include "tools/format.h"
#include "tools/parse.h"
#include "tools/units.h"

namespace {

QString Join(const std::array<int32_t, fmUnit::QuantityCount>& values) {
  QStringList parts;
  for (int32_t v : values) parts << QString::fromStdString(tools::Format("%d", v));
  return parts.join(',');
}

// False, leaving `out` alone, unless the text holds one valid index per quantity.
template <class Valid>
bool Split(const QString& text, std::array<int32_t, fmUnit::QuantityCount>& out, Valid valid) {
  const QStringList parts = text.split(',');
  if (parts.size() != fmUnit::QuantityCount) return false;
  std::array<int32_t, fmUnit::QuantityCount> values{};
  for (int q = 0; q < fmUnit::QuantityCount; ++q) {
    const auto v = tools::ParseInt32(parts[q].toStdString());
    if (!v || !valid(q, *v)) return false;
    values[q] = *v;
  }
  out = values;
  return true;
}

}  // namespace

fmUnit DefaultUnits(QSettings& settings) {
  fmUnit units;  // the English preset unless valid defaults were saved
  settings.beginGroup("Units");
  const auto& quantities = UnitQuantities();
  Split(settings.value("Unit").toString(), units.unit, [&](int q, int32_t v) {
    return v >= quantities[q].first && v < quantities[q].first + quantities[q].count;
  });
  Split(settings.value("Precision").toString(), units.precision,
        [](int, int32_t v) { return v >= 0 && v < tools::kPrecisionFormatCount; });
  settings.endGroup();
  return units;
}

void StoreDefaultUnits(const fmUnit& units, QSettings& settings) {
  settings.beginGroup("Units");
  settings.setValue("Unit", Join(units.unit));
  settings.setValue("Precision", Join(units.precision));
  settings.endGroup();
}

analysis::MassModel AnalysisMasses(QSettings& settings) {
  const bool consistent = settings.value("Analysis/Masses").toString().toStdString() ==
                          analysis::MassModelName(analysis::MassModel::Consistent);
  return consistent ? analysis::MassModel::Consistent : analysis::MassModel::Lumped;
}

void StoreAnalysisMasses(analysis::MassModel masses, QSettings& settings) {
  settings.setValue("Analysis/Masses", QString(analysis::MassModelName(masses)));
}
