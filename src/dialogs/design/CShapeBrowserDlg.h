#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/design/shape_browser.h"
#include "dialogs/design/shape_outline.h"
#include "dialogs/frame/CDialog.h"
#include "tools/fm_unit.h"

class SectionPicture;

// A shape table browser: a type filter and a search box over the list of labels, the chosen
// shape's properties in the current units and its outline.
class CShapeBrowserDlg : public CDialog {
 public:
  fmUnit* m_pUnits = nullptr;
  uint32_t m_crAlternateRowColor = 0xF0F5FF;
  int32_t m_nSelectedShape = -1;  // index in the table: preselected on entry, chosen on IDOK
  std::string m_strShapeName;     // label: preselected when the index is not valid; chosen on IDOK
  std::string m_strFind;          // the search text

  // The table indices the list shows, in list order.
  const std::vector<int>& ShownShapes() const { return shown_; }
  SectionPicture* Picture() const { return picture_; }

 protected:
  CShapeBrowserDlg(const frame::FormBase& form, QWidget* pParent);
  // Type filter and search above the list of labels, the chosen shape's properties and its
  // outline beside it.
  static frame::Form<CShapeBrowserDlg> BrowserForm(int templateId, const char* caption);

  BOOL OnInitDialog() override;
  void OnOK() override;

  // The table's part.
  virtual bool LoadTable() = 0;  // false when the table cannot be read
  virtual int TableSize() const = 0;
  virtual std::vector<std::string> TypeNames() const = 0;                             // after "All types"
  virtual std::vector<int> Filter(int typeIndex, const std::string& find) const = 0;  // typeIndex 0: all
  virtual std::string LabelOf(int index) const = 0;
  virtual int FindLabel(const std::string& label) const = 0;
  virtual std::vector<design::PropertyLine> Properties(int index, const fmUnit& units) const = 0;
  virtual design::Outline OutlineOf(int index) const = 0;
  virtual void OnShapeChosen(int index) = 0;
  // Why the shape cannot be taken (shown, and the dialog stays open), or "".
  virtual std::string RefusalOf(int /*index*/) const { return ""; }

  void RefillList();
  void ShowShape(int index);
  int CurrentShape() const;
  fmUnit Units() const { return m_pUnits ? *m_pUnits : fmUnit(); }

 private:
  std::vector<int> shown_;
  SectionPicture* picture_ = nullptr;
};
