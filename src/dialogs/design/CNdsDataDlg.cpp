#include "dialogs/design/CNdsDataDlg.h"

#include "dialogs/frame/Form.h"
#include "resources/sections_ids.h"

const frame::Form<CShapeBrowserDlg>& CNdsDataDlg::Description() {
  static const frame::Form<CShapeBrowserDlg> form = BrowserForm(res::kIddNdsData, "NDS Sawn Lumber");
  return form;
}

CNdsDataDlg::CNdsDataDlg(QWidget* pParent) : CShapeBrowserDlg(Description(), pParent) {}

bool CNdsDataDlg::LoadTable() {
  table_ = tools::CurrentNdsTable();
  return table_ != nullptr;
}

int CNdsDataDlg::TableSize() const { return table_ ? static_cast<int>(table_->size()) : 0; }

std::vector<std::string> CNdsDataDlg::TypeNames() const {
  return {res::LoadStringOr(res::kStrLumberBoards, "Boards"),
          res::LoadStringOr(res::kStrLumberDimension, "Dimension lumber"),
          res::LoadStringOr(res::kStrLumberTimbers, "Timbers")};
}

std::vector<int> CNdsDataDlg::Filter(int typeIndex, const std::string& find) const {
  if (!table_) return {};
  return design::FilterLumber(*table_, static_cast<design::LumberFamily>(typeIndex), find);
}

std::string CNdsDataDlg::LabelOf(int index) const { return table_ ? (*table_)[size_t(index)].label : ""; }

int CNdsDataDlg::FindLabel(const std::string& label) const { return tools::get_nds_shape(label); }

std::vector<design::PropertyLine> CNdsDataDlg::Properties(int index, const fmUnit& units) const {
  return design::LumberProperties((*table_)[size_t(index)], units);
}

design::Outline CNdsDataDlg::OutlineOf(int index) const {
  return design::LumberOutline((*table_)[size_t(index)], Units().Factor(fmUnit::Length), Units().Label(fmUnit::Length));
}

void CNdsDataDlg::OnShapeChosen(int index) { m_Shape = (*table_)[size_t(index)]; }
