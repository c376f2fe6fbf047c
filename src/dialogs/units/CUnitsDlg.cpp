#include "dialogs/units/CUnitsDlg.h"

#include "dialogs/frame/Form.h"
#include "resources/units_ids.h"
#include "tools/units.h"

using namespace res;

// One row per quantity: its label, the unit and precision lists and the convert check.
const frame::Form<CUnitsDlg>& CUnitsDlg::Description() {
  using F = frame::Field<CUnitsDlg>;
  const frame::FormFrame table = {
      .templateId = kIddUnits, .caption = "Units and Precisions", .captionStringId = kStrUnitsCaption, .stretchColumn = false};
  static const frame::Form<CUnitsDlg> form(table, [] {
    std::vector<F> f = {
        F::Static("Check the box to the right of each unit to convert existing data associated with that unit.")
            .Span(4),
        F::Static("Unit").At(1, 1).Span(1),
        F::Static("Precision").At(1, 2).Span(1),
        F::Static("Convert").At(1, 3).Span(1),
    };
    const auto precisions = [](const CUnitsDlg&) {
      const auto& formats = tools::PrecisionFormats();
      return std::vector<std::string>(formats.begin(), formats.end());
    };
    for (int q = 0; q < fmUnit::QuantityCount; ++q) {
      const QuantityInfo& quantity = UnitQuantities()[q];
      // Row 15 offers the radian and the degree groups together, radian first.
      const auto units = [quantity](const CUnitsDlg&) {
        const auto& labels = tools::UnitLabels();
        return std::vector<std::string>(labels.begin() + quantity.first, labels.begin() + quantity.first + quantity.count);
      };
      f.push_back(F::DropIndex(quantity.label, [q](CUnitsDlg& d) -> int32_t& { return d.m_Units.unit[q]; }, quantity.first)
                      .Id(kCtlUnitsUnit + q)
                      .LabelId(kCtlUnitsLabel + q, kStrUnitsQuantity + q)
                      .Items(units));
      f.push_back(F::DropIndex("", [q](CUnitsDlg& d) -> int32_t& { return d.m_Units.precision[q]; })
                      .Id(kCtlUnitsPrecision + q)
                      .At(q + 2, 2)
                      .Items(precisions));
      f.push_back(F::Check("", [q](CUnitsDlg& d) -> int32_t& { return d.m_Units.convert[q]; })
                      .Id(kCtlUnitsConvert + q)
                      .At(q + 2, 3)
                      .Span(1));
    }
    f.push_back(F::Check("Save as defaults for future use", &CUnitsDlg::m_bSaveAsDefaults).Id(kCtlUnitsSaveDefaults).Span(4));
    f.push_back(F::Button("Check All").Id(kCtlUnitsCheckAll, kStrUnitsCheckAll));
    f.push_back(F::Button("Clear All").Id(kCtlUnitsClearAll));
    f.push_back(F::Button("Default English").Id(kCtlUnitsDefaultEnglish));
    f.push_back(F::Button("Default Metric").Id(kCtlUnitsDefaultMetric));
    f.push_back(F::Button("Consistent English").Id(kCtlUnitsConsistentEnglish));
    f.push_back(F::Button("Consistent Metric").Id(kCtlUnitsConsistentMetric));
    return f;
  }());
  return form;
}

CUnitsDlg::CUnitsDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnCommand(kCtlUnitsCheckAll, [this] { OnCheckAll(); });
  OnCommand(kCtlUnitsClearAll, [this] { OnClearAll(); });
  OnCommand(kCtlUnitsDefaultEnglish, [this] { OnDefaultEnglish(); });
  OnCommand(kCtlUnitsDefaultMetric, [this] { OnDefaultMetric(); });
  OnCommand(kCtlUnitsConsistentEnglish, [this] { OnConsistentEnglish(); });
  OnCommand(kCtlUnitsConsistentMetric, [this] { OnConsistentMetric(); });
}

BOOL CUnitsDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  // A locked model may change how it is shown, never convert what it stores.
  if (m_bModelLocked) {
    for (int q = 0; q < fmUnit::QuantityCount; ++q) EnableDlgItem(kCtlUnitsConvert + q, false);
    EnableDlgItem(kCtlUnitsCheckAll, false);
    EnableDlgItem(kCtlUnitsClearAll, false);
  }
  return 1;
}

// Buttons change the dialog's own record: what the user chose so far is taken first, so the
// presets leave the checks as the user left them.
void CUnitsDlg::Apply(const std::function<void(fmUnit&)>& change) {
  UpdateData(1);
  change(m_Units);
  UpdateData(0);
}

void CUnitsDlg::OnCheckAll() {
  Apply([](fmUnit& u) { u.convert.fill(1); });
}
void CUnitsDlg::OnClearAll() {
  Apply([](fmUnit& u) { u.convert.fill(0); });
}
void CUnitsDlg::OnDefaultEnglish() {
  Apply([](fmUnit& u) { u.SetEnglish(); });
}
void CUnitsDlg::OnDefaultMetric() {
  Apply([](fmUnit& u) { u.SetMetric(); });
}
void CUnitsDlg::OnConsistentEnglish() {
  Apply([](fmUnit& u) { u.SetConsistentEnglish(); });
}
void CUnitsDlg::OnConsistentMetric() {
  Apply([](fmUnit& u) { u.SetConsistentMetric(); });
}
