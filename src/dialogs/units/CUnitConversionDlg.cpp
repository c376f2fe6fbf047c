#include "dialogs/units/CUnitConversionDlg.h"

#include <QComboBox>
#include <QLineEdit>
#include <algorithm>

#include "dialogs/frame/Form.h"
#include "resources/units_ids.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/units.h"

using namespace res;

namespace {

// Texts a user passes through while typing a number ("", "-", "-.", "2e", "2e-"): no message
// for them, the result simply waits for a number.
bool IsNumberBeingTyped(std::string_view text) {
  text = tools::Trim(text);
  std::string_view unsigned_part = text;
  if (!unsigned_part.empty() && (unsigned_part.front() == '-' || unsigned_part.front() == '+'))
    unsigned_part.remove_prefix(1);
  if (unsigned_part.empty() || unsigned_part == ".") return true;
  std::string_view mantissa = text;
  if (mantissa.back() == '-' || mantissa.back() == '+') mantissa.remove_suffix(1);
  if (mantissa.empty() || (mantissa.back() != 'e' && mantissa.back() != 'E')) return false;
  mantissa.remove_suffix(1);
  return tools::ParseDouble(mantissa).has_value();
}

}  // namespace

const frame::Form<CUnitConversionDlg>& CUnitConversionDlg::Description() {
  using F = frame::Field<CUnitConversionDlg>;
  using D = CUnitConversionDlg;
  const auto typeNames = [](const D&) {
    std::vector<std::string> names;
    for (const auto& type : tools::ConversionTypes()) names.emplace_back(type.name);
    return names;
  };
  static const frame::Form<D> form({kIddUnitConversion, "Unit Conversion", kStrUnitConversionCaption, 340, 0, 0, frame::FormFrame::Buttons::Close},
                                   {
                                       F::DropIndex("Unit type:", &D::m_nUnitType).Id(kCtlConvType).Items(typeNames),
                                       F::Real("Value:", &D::m_dFromValue).Id(kCtlConvValue),
                                       F::DropIndex("From:", &D::m_nFromUnit).Id(kCtlConvFrom),
                                       F::DropIndex("To:", &D::m_nToUnit).Id(kCtlConvTo),
                                       F::Result("Result:").Id(kCtlConvResult),
                                   });
  return form;
}

CUnitConversionDlg::CUnitConversionDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnSelChange(kCtlConvType, [this] { OnCbnSelchangeComboUnitType(); });
  OnSelChange(kCtlConvFrom, [this] { Convert(); });
  OnSelChange(kCtlConvTo, [this] { Convert(); });
  OnEditChange(kCtlConvValue, [this] { OnEnChangeEditFrom(); });
}

BOOL CUnitConversionDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  UpdateFromAndToUnits();
  return 1;
}

void CUnitConversionDlg::UpdateFromAndToUnits() {
  auto* types = Item<QComboBox>(kCtlConvType);
  if (!types) return;
  m_nUnitType = std::max(0, types->currentIndex());
  const auto& type = tools::ConversionTypes()[m_nUnitType];
  const auto& labels = tools::UnitLabels();
  const std::vector<std::string> units(labels.begin() + type.first, labels.begin() + type.first + type.count);
  SetComboItems(kCtlConvFrom, units);
  SetComboItems(kCtlConvTo, units);
  Convert();
}

void CUnitConversionDlg::Convert() {
  auto* value = Item<QLineEdit>(kCtlConvValue);
  if (value && IsNumberBeingTyped(value->text().toStdString())) return;
  if (!UpdateData(1)) return;
  if (m_nUnitType < 0 || m_nUnitType >= static_cast<int>(tools::ConversionTypes().size())) return;
  const auto& type = tools::ConversionTypes()[m_nUnitType];
  if (m_nFromUnit < 0 || m_nToUnit < 0 || m_nFromUnit >= type.count || m_nToUnit >= type.count) return;
  const double result = tools::ConvertUnits(m_dFromValue, type.first + m_nFromUnit, type.first + m_nToUnit);
  SetDlgItemText(kCtlConvResult, tools::Format("%.7g", result));
}

void CUnitConversionDlg::OnEnChangeEditFrom() { Convert(); }

void CUnitConversionDlg::OnCbnSelchangeComboUnitType() { UpdateFromAndToUnits(); }
