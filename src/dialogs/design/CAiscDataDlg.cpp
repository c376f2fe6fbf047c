#include "dialogs/design/CAiscDataDlg.h"

#include "dialogs/frame/Form.h"
#include "resources/sections_ids.h"

const frame::Form<CShapeBrowserDlg>& CAiscDataDlg::Description() {
  static const frame::Form<CShapeBrowserDlg> form = BrowserForm(res::kIddAiscData, "AISC Steel Shapes");
  return form;
}

CAiscDataDlg::CAiscDataDlg(QWidget* pParent) : CShapeBrowserDlg(Description(), pParent) {}

bool CAiscDataDlg::LoadTable() {
  library_ = tools::CurrentAiscLibrary();
  types_ = library_ ? design::SteelShapeTypes(*library_) : std::vector<std::string>();
  return library_ != nullptr;
}

int CAiscDataDlg::TableSize() const { return library_ ? static_cast<int>(library_->size()) : 0; }

std::vector<std::string> CAiscDataDlg::TypeNames() const { return types_; }

std::vector<int> CAiscDataDlg::Filter(int typeIndex, const std::string& find) const {
  if (!library_) return {};
  const std::string type =
      typeIndex > 0 && typeIndex <= static_cast<int>(types_.size()) ? types_[size_t(typeIndex - 1)] : "";
  return design::FilterSteelShapes(*library_, type, find);
}

std::string CAiscDataDlg::LabelOf(int index) const { return library_ ? library_->at(size_t(index)).label : ""; }

int CAiscDataDlg::FindLabel(const std::string& label) const { return library_ ? library_->Find(label) : -1; }

std::vector<design::PropertyLine> CAiscDataDlg::Properties(int index, const fmUnit& units) const {
  return design::SteelShapeProperties(library_->at(size_t(index)), units);
}

design::Outline CAiscDataDlg::OutlineOf(int index) const {
  return design::SteelShapeOutline(library_->at(size_t(index)), Units().Factor(fmUnit::Length),
                                   Units().Label(fmUnit::Length));
}

void CAiscDataDlg::OnShapeChosen(int index) { m_Shape = library_->at(size_t(index)); }

std::string CAiscDataDlg::RefusalOf(int index) const {
  return design::SteelShapeSectionFault(library_->at(size_t(index)), library_);
}
