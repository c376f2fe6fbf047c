#pragma once
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"

class CDialog;
class QPrinter;
class QTableView;
class SheetModel;
class SheetView;

// The spreadsheet grid every table dialog shows: a view over a Sheet, with in-cell
// editing (Enter moves down), drop-down cells, locked cells, block copy and paste as
// tab-separated text, alternating row colours and the "Preferences" grid settings.
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
  // Appends rows (numbering their ids when asked) and shows the first new row.
  int AddRows(int count, bool numberIds);
  // Shows the failure's message through the prompter and makes its cell active; false then.
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

  // Copies the selection block as tab-separated text; pastes at the active cell.
  void CopySelection();
  void PasteClipboard();
  void ClearSelection();

 private:
  void ApplySettings();
  void SyncSelection();

  grid::Sheet sheet_;
  SheetModel* model_ = nullptr;
  SheetView* view_ = nullptr;
  int redrawOff_ = 0;
};
