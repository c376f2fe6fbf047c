#pragma once
#include "dialogs/design/CShapeBrowserDlg.h"
#include "tools/shape_table.h"

// The steel shape browser over the AISC shape library.
class CAiscDataDlg : public CShapeBrowserDlg {
 public:
  explicit CAiscDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CShapeBrowserDlg>& Description();

  tools::fmSect_AISC m_Shape;  // the chosen shape, after IDOK

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
  std::string RefusalOf(int index) const override;

 private:
  const tools::AiscLibrary* library_ = nullptr;
  std::vector<std::string> types_;
};
