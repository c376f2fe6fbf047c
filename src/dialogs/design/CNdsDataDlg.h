#pragma once
#include "dialogs/design/CShapeBrowserDlg.h"
#include "tools/shape_table.h"

// The sawn-lumber browser over the NDS table of dressed sizes.
class CNdsDataDlg : public CShapeBrowserDlg {
 public:
  explicit CNdsDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CShapeBrowserDlg>& Description();

  tools::fmSect_NDS m_Shape;  // the chosen size, after IDOK

 protected:
  bool LoadTable() override;
  int TableSize() const override;
  std::vector<std::string> TypeNames() const override;
  std::vector<int> Filter(int typeIndex, const std::string& find) const override;
  std::string LabelOf(int index) const override;
  int FindLabel(const std::string& label) const override;
  std::vector<design::PropertyLine> Properties(int index, const fmUnit& units) const override;
  design::Outline OutlineOf(int index) const override;
  void OnShapeChosen(int index) override;

 private:
  const std::vector<tools::fmSect_NDS>* table_ = nullptr;
};
