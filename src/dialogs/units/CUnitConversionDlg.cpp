#include "dialogs/units/CUnitConversionDlg.h"

#include <QComboBox>
#include <QLineEdit>

#include "dialogs/frame/DataExchange.h"
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

CUnitConversionDlg::CUnitConversionDlg(QWidget* pParent) : CDialog(8097, pParent) {
  OnSelChange(kCtlConvType, [this] { OnCbnSelchangeComboUnitType(); });
  OnSelChange(kCtlConvFrom, [this] { Convert(); });
  OnSelChange(kCtlConvTo, [this] { Convert(); });
  OnEditChange(kCtlConvValue, [this] { OnEnChangeEditFrom(); });
}

BOOL CUnitConversionDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (auto* types = Item<QComboBox>(kCtlConvType)) {
    types->clear();
    for (const auto& type : tools::ConversionTypes()) types->addItem(type.name);
    types->setCurrentIndex(0);
  }
  UpdateFromAndToUnits();
  return 1;
}

void CUnitConversionDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_CBIndex(pDX, kCtlConvType, m_nUnitType);
  DDX_CBIndex(pDX, kCtlConvFrom, m_nFromUnit);
  DDX_CBIndex(pDX, kCtlConvTo, m_nToUnit);
  DDX_Text(pDX, kCtlConvValue, m_dFromValue);
}

void CUnitConversionDlg::UpdateFromAndToUnits() {
  auto* types = Item<QComboBox>(kCtlConvType);
  auto* from = Item<QComboBox>(kCtlConvFrom);
  auto* to = Item<QComboBox>(kCtlConvTo);
  if (!types || !from || !to) return;
  m_nUnitType = std::max(0, types->currentIndex());
  const auto& type = tools::ConversionTypes()[m_nUnitType];
  const auto& labels = tools::UnitLabels();
  from->clear();
  to->clear();
  for (int i = 0; i < type.count; ++i) {
    from->addItem(QString::fromStdString(labels[type.first + i]));
    to->addItem(QString::fromStdString(labels[type.first + i]));
  }
  from->setCurrentIndex(0);
  to->setCurrentIndex(0);
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
