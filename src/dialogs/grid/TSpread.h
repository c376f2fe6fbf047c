#pragma once
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/grid/grid_edit.h"
#include "dialogs/grid/sheet.h"

class CDialog;
class QPrinter;
class QTableView;
class QUndoStack;
class SheetModel;
class SheetView;

// The spreadsheet grid every table dialog shows: a view over a Sheet, with in-cell
// editing (typing replaces the cell, Enter moves down), drop-down cells that take only their
// items, locked cells, block copy, cut and paste as tab-separated text, undo and redo,
// alternating row colours and the "Preferences" grid settings.
class TSpread : public QWidget {
 public:
  TSpread();
  ~TSpread() override;

  // Creates the grid in place of a placeholder control of the dialog and gives it gridId.
  bool CreateInPlace(CDialog* parent, int placeholderId, int gridId);

  grid::Sheet& sheet() { return sheet_; }
  const grid::Sheet& sheet() const { return sheet_; }
  QTableView* view() const;

  void InitializeGrid(grid::Color alternateRowColor, int rows, int cols, const std::vector<std::string>& headers,
                      const std::vector<double>& widths, bool lockAll);
  // Appends rows (numbering their ids when asked) as one undoable step; prepare fills the
  // new rows' defaults within that step. Column 1 of the first new row becomes active and
  // the grid takes the keyboard focus. Returns the first new row.
  using RowsPreparer = std::function<void(grid::Sheet& sheet, int firstRow, int lastRow)>;
  int AddRows(int count, bool numberIds, const RowsPreparer& prepare = {});
  // Shows the failure's message through the prompter, makes its cell active and gives the
  // grid the keyboard focus, so the user can type the fix at once; false then.
  bool ShowFailure(const std::optional<grid::GridFailure>& failure);
  bool CheckEmptyCells(int rowCount, int firstCol, int lastCol, const std::string& entity);
  void ShowRow(int row);
  void SetActiveCell(int col, int row);
  grid::CellRef GetActiveCell() const { return sheet_.ActiveCell(); }
  void SetSelectBlock(const grid::Block& block);
  // The right-click fill: offers copy and series for a fillable cell; false when not offered.
  bool FillSelection(int col, int row, bool lock);

  // "Save...": asks for a file and saves the grid in the format of its extension (HTML,
  // text, workbook), appending when the preferences say so. False when cancelled or refused.
  bool ExportGrid(const std::string& title = {});
  // "Print...": asks, lets the user choose the printer, then prints the selection block
  // (the whole grid when nothing is selected) under the title. False when nothing printed.
  bool PrintGrid(const std::string& title);
  // Prints a block without asking; an empty block prints the whole grid.
  bool PrintBlock(QPrinter& printer, const grid::Block& block, const std::string& title, int* pages = nullptr);

  const std::string& GetData(int col, int row) const { return sheet_.GetData(col, row); }
  void SetData(int col, int row, const std::string& text);

  // Re-reads the sheet after changes made to it directly.
  void Refresh();

  // While one exists the view does not repaint and model changes are batched; the view
  // re-reads the sheet once when the last guard goes, on every exit path.
  class RedrawGuard {
   public:
    explicit RedrawGuard(TSpread& spread);
    ~RedrawGuard();
    RedrawGuard(const RedrawGuard&) = delete;
    RedrawGuard& operator=(const RedrawGuard&) = delete;

   private:
    TSpread& spread_;
  };

  // Called on a right click over a cell (col, row from 1).
  std::function<void(int col, int row)> onRightClick;

  // Copies the selection block as tab-separated text. Paste starts at the top-left cell of
  // the selection, and one value fills a selection of several cells; a block that does not
  // fit is refused with a message. Cut copies, then clears; clear empties the unlocked
  // cells of the selection.
  void CopySelection();
  void PasteClipboard();
  void CutSelection();
  void ClearSelection();
  // Writes texts typed or pasted into cells, as one undoable step. Locked cells are
  // skipped; a text that a drop-down cell does not take refuses the whole write with a
  // message, the cells keeping their texts. False when refused.
  bool WriteCells(const std::string& stepName, grid::CellWrites writes);

  // Every command that writes cells goes through one of these two, so the user can undo it.
  // The step keeps the block it changed, before and after, not one entry per cell.
  void ChangeCells(const std::string& stepName, const grid::Block& block, const std::function<void(grid::Sheet&)>& change);
  // For a change that adds or removes rows: the rows from firstRow on are kept. onStep(undone)
  // lets the dialog restore what it keeps about those rows after an undo or redo.
  void ChangeRows(const std::string& stepName, int firstRow, const std::function<void(grid::Sheet&)>& change,
                  std::function<void(bool undone)> onStep = {});
  // Undo never goes back past the grid as it was laid out (the dialog's opening state).
  void Undo();
  void Redo();
  QUndoStack& UndoStack() { return *undo_; }

 private:
  friend class SpreadStep;
  void ApplySettings();
  void SyncSelection();
  grid::Block SelectionOrActiveCell();
  // Drops the undo steps when the grid was laid out anew since they were taken.
  void ForgetStaleSteps();
  void Restore(const grid::SavedBlock& saved);
  void ShowChangedBlock(const grid::Block& block);

  grid::Sheet sheet_;
  SheetModel* model_ = nullptr;
  SheetView* view_ = nullptr;
  QUndoStack* undo_ = nullptr;
  uint64_t undoLayout_ = 0;
  int redrawOff_ = 0;
};
