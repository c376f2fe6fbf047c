#pragma once
#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>
#include <string>

#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/Form.h"
#include "dialogs/frame/TemplateBuilder.h"
#include "dialogs/grid/TSpread.h"
#include "resources/grid_ids.h"
#include "tools/fm_unit.h"

// What every table dialog (nodes, members, load cases ...) shares: the grid created in place
// of its placeholder, "New Rows" with its count (1 to 100000), the locked and selected-only
// handling, and OK's pattern of saving from the grid and ending only when the save succeeds.
class CDataGridDlg : public CDialog {
 public:
  fmUnit* m_pUnits = nullptr;
  BOOL m_bShowSelectedOnly = 0;
  BOOL m_bModelLocked = 0;
  uint32_t m_nNewRows = 1;
  uint32_t m_crAlternateRowColor = 0xF0F5FF;  // 0xRRGGBB, the host's "Spreadsheet Alternate BackColor"

  TSpread& Spread() { return m_Spread; }
  // Heading of the printed and saved table ("Node Table"); each table names its own.
  virtual std::string PrintTitle() const { return {}; }

 protected:
  CDataGridDlg(int templateId, QWidget* pParent);
  explicit CDataGridDlg(const frame::FormBase& form, QWidget* pParent);

  // A table's description: the grid filling the body with `fields` below it or, for buttons,
  // on the right between the new-row count with "New Rows" and "Print..." with "Save...";
  // `after` follows those. A Grid() among `fields` puts the table there instead (the fields
  // before it above it). Without new rows the table has neither count nor "New Rows". A
  // field's unit label shows the dialog's units.
  template <class Dlg>
  static frame::Form<Dlg> TableForm(frame::FormFrame look, std::vector<frame::Field<Dlg>> fields = {},
                                    std::vector<frame::Field<Dlg>> after = {}, bool newRows = true) {
    using F = frame::Field<Dlg>;
    using frame::FieldKind;
    look.stretchColumn = false;
    // The fields below the grid come first, as the focus goes.
    const auto is = [](FieldKind kind) { return [kind](const F& f) { return f.layout.kind == kind; }; };
    std::vector<F> all;
    if (std::none_of(fields.begin(), fields.end(), is(FieldKind::Grid))) all.push_back(F::Grid());
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(all), std::not_fn(is(FieldKind::Button)));
    for (F& f : all)
      if (f.layout.kind == FieldKind::Grid) f.Id(res::kCtlGridPlaceholder);
    if (newRows) {
      all.push_back(F::Edit("").Id(res::kCtlNewRowCount).At(frame::kSideBar, 0));
      all.push_back(F::Button("New Rows").Id(res::kCtlNewRows, res::kStrNewRows));
    }
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(all), is(FieldKind::Button));
    all.push_back(F::Button("Print...").Id(res::kCtlPrint, res::kStrPrint));
    all.push_back(F::Button("Save...").Id(res::kCtlSave, res::kStrSave));
    all.insert(all.end(), after.begin(), after.end());
    return frame::Form<Dlg>(look, std::move(all), &Dlg::m_pUnits);
  }

  // What the tables whose guard says only that the model is locked show.
  static constexpr const char* kModelLockedShort = "The Model is locked.\nYou can not modify data in the spreadsheet.";

  // Order: captions, the grid in place, Refresh, the locked-model guard with EditLock().
  BOOL OnInitDialog() override;
  // How this table turns read-only; the standard guard unless a table differs.
  virtual GridEditLock EditLock() const { return {}; }
  void DoDataExchange(CDataExchange* pDX) override;
  void OnOK() override;

  // Model to grid: set up the grid and fill it.
  virtual void Refresh() = 0;
  // Grid to model; shows the first failure and returns false, the model untouched.
  virtual bool Save() = 0;

  // "New Rows" as one undoable step; Enter in the count field runs it too.
  void OnNewRows();
  // Fills the defaults of new rows firstRow..lastRow, within the "New Rows" step.
  virtual void PrepareNewRows(grid::Sheet&, int /*firstRow*/, int /*lastRow*/) {}
  bool eventFilter(QObject* watched, QEvent* event) override;
  void OnPrint() { m_Spread.PrintGrid(PrintTitle()); }
  void OnSave() { m_Spread.ExportGrid(PrintTitle()); }
  virtual void OnGridRClick(int col, int row);
  bool IsReadOnly() const { return m_bModelLocked || m_bShowSelectedOnly; }

  TSpread m_Spread;

 private:
  void Connect();
};
