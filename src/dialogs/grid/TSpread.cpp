#include "dialogs/grid/TSpread.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLayout>
#include <QPrinter>
#include <QScrollBar>
#include <QUndoStack>

#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/Preferences.h"
#include "dialogs/grid/SheetModel.h"
#include "dialogs/grid/GridPrinter.h"
#include "dialogs/grid/SheetView.h"
#include "dialogs/grid/export.h"
#include "dialogs/grid/grid_ops.h"
#include "resources/grid_ids.h"
#include "resources/resources.h"

// One undoable change of the grid: the block it changed, before and after. The change is
// already made when the step is pushed, so the first redo does nothing.
class SpreadStep : public QUndoCommand {
 public:
  SpreadStep(TSpread& spread, const std::string& name, grid::SavedBlock before, grid::SavedBlock after,
             std::function<void(bool)> onStep)
      : QUndoCommand(QString::fromStdString(name)),
        spread_(spread),
        before_(std::move(before)),
        after_(std::move(after)),
        onStep_(std::move(onStep)) {}
  void undo() override {
    spread_.Restore(before_);
    if (onStep_) onStep_(true);
  }
  void redo() override {
    if (done_) {
      done_ = false;
      return;
    }
    spread_.Restore(after_);
    if (onStep_) onStep_(false);
  }

 private:
  TSpread& spread_;
  grid::SavedBlock before_, after_;
  std::function<void(bool)> onStep_;
  bool done_ = true;
};

TSpread::TSpread()
    : model_(new SheetModel(sheet_, this)), view_(new SheetView(*this, this)), undo_(new QUndoStack(this)) {
  model_->onEdit = [this](int col, int row, const std::string& text) {
    return WriteCells("Typing", grid::CellWrites{{col, row, col, row}, {text}});
  };
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(view_);
  view_->setModel(model_);
  view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view_->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  view_->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
  connect(view_, &QWidget::customContextMenuRequested, this, [this](const QPoint& pos) {
    const QModelIndex index = view_->indexAt(pos);
    if (index.isValid() && onRightClick) onRightClick(index.column() + 1, index.row() + 1);
  });
  connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { SyncSelection(); });
  connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
    if (current.isValid()) sheet_.SetActiveCell(current.column() + 1, current.row() + 1);
  });
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMinimumSize(360, 200);
}

TSpread::~TSpread() {
  // The view, model and steps read the sheet, a member that goes before QWidget deletes
  // children.
  delete undo_;
  delete view_;
  delete model_;
}

QTableView* TSpread::view() const { return view_; }

bool TSpread::CreateInPlace(CDialog* parent, int placeholderId, int gridId) {
  QWidget* placeholder = parent->GetDlgItem(placeholderId);
  if (!placeholder) return false;
  setParent(placeholder->parentWidget());
  setProperty("ctlId", gridId);
  setObjectName(QString("ctl_%1").arg(gridId));
  if (QLayout* layout = placeholder->parentWidget()->layout()) {
    // The placeholder may sit in a nested layout; replaceWidget searches them all.
    if (QLayoutItem* old = layout->replaceWidget(placeholder, this, Qt::FindChildrenRecursively)) delete old;
  }
  placeholder->hide();
  show();
  return true;
}

void TSpread::ApplySettings() {
  const prefs::SpreadsheetSettings s = prefs::ReadSpreadsheetSettings();
  QFont font = QApplication::font();
  font.setPointSize(s.fontSize);
  view_->setFont(font);
  view_->horizontalHeader()->setFont(font);
  view_->verticalHeader()->setFont(font);
  const int textHeight = QFontMetrics(font).height();
  const int rowHeight = std::max(s.rowHeight, textHeight + 4);
  view_->verticalHeader()->setMinimumSectionSize(std::min(rowHeight, 8));
  view_->verticalHeader()->setDefaultSectionSize(rowHeight);
  view_->horizontalHeader()->setFixedHeight(2 * rowHeight);
  view_->verticalHeader()->setVisible(s.showRowHeader);
  const QFontMetrics metrics(font);
  const int charWidth = metrics.averageCharWidth() + 1;
  // A column is at least as wide as its heading and the texts of its first rows, so a report
  // never shows a number cut short; the rest of a million rows are not measured.
  constexpr int kRowsMeasured = 200;
  const int measuredRows = std::min(sheet_.MaxRows(), kRowsMeasured);
  for (int col = 1; col <= sheet_.MaxCols(); ++col) {
    int width = static_cast<int>(sheet_.GetColWidth(col) * charWidth);
    for (int row = 0; row <= measuredRows; ++row)
      if (const std::string& text = sheet_.GetData(col, row); !text.empty())
        width = std::max(width, metrics.horizontalAdvance(QString::fromStdString(text)));
    view_->setColumnWidth(col - 1, width + 8);
  }
  view_->verticalHeader()->setFixedWidth(static_cast<int>(sheet_.GetColWidth(0) * charWidth) + 8);
}

void TSpread::InitializeGrid(grid::Color alternateRowColor, int rows, int cols,
                             const std::vector<std::string>& headers, const std::vector<double>& widths,
                             bool lockAll) {
  RedrawGuard guard(*this);
  grid::InitializeGrid(sheet_, alternateRowColor, rows, cols, headers, widths, lockAll);
}

void TSpread::Refresh() {
  model_->BeginReset();
  model_->EndReset();
  ApplySettings();
  ForgetStaleSteps();
}

TSpread::RedrawGuard::RedrawGuard(TSpread& spread) : spread_(spread) {
  if (spread_.redrawOff_++ == 0) {
    spread_.view_->setUpdatesEnabled(false);
    spread_.model_->BeginReset();
  }
}

TSpread::RedrawGuard::~RedrawGuard() {
  if (--spread_.redrawOff_ == 0) {
    spread_.model_->EndReset();
    spread_.ApplySettings();
    spread_.view_->setUpdatesEnabled(true);
    spread_.ForgetStaleSteps();
    const grid::CellRef active = spread_.sheet_.ActiveCell();
    if (active.col >= 1 && active.row >= 1) spread_.SetActiveCell(active.col, active.row);
  }
}

int TSpread::AddRows(int count, bool numberIds, const RowsPreparer& prepare) {
  const int first = sheet_.MaxRows() + 1;
  if (count <= 0) return first;
  ChangeRows("New Rows", first, [&](grid::Sheet& sheet) {
    grid::AddRows(sheet, count, numberIds);
    if (prepare) prepare(sheet, first, sheet.MaxRows());
  });
  SetActiveCell(1, first);
  ShowRow(first);
  view_->setFocus();
  return first;
}

void TSpread::ForgetStaleSteps() {
  if (sheet_.Layout() == undoLayout_) return;
  undo_->clear();
  undoLayout_ = sheet_.Layout();
}

void TSpread::ChangeCells(const std::string& stepName, const grid::Block& block,
                          const std::function<void(grid::Sheet&)>& change) {
  ForgetStaleSteps();
  grid::SavedBlock before = grid::SaveBlock(sheet_, block);
  change(sheet_);
  grid::SavedBlock after = grid::SaveBlock(sheet_, block);
  if (before.texts == after.texts) return;  // nothing changed: no step to undo
  const grid::Block changed = after.block;
  undo_->push(new SpreadStep(*this, stepName, std::move(before), std::move(after), {}));
  if (redrawOff_ == 0) model_->CellsChanged(changed.col1, changed.row1, changed.col2, changed.row2);
}

void TSpread::ChangeRows(const std::string& stepName, int firstRow, const std::function<void(grid::Sheet&)>& change,
                         std::function<void(bool)> onStep) {
  ForgetStaleSteps();
  grid::SavedBlock before = grid::SaveRows(sheet_, firstRow);
  {
    RedrawGuard guard(*this);
    change(sheet_);
  }
  grid::SavedBlock after = grid::SaveRows(sheet_, firstRow);
  if (before.maxRows == after.maxRows && before.texts == after.texts && before.locks == after.locks) return;
  undo_->push(new SpreadStep(*this, stepName, std::move(before), std::move(after), std::move(onStep)));
}

void TSpread::Undo() {
  ForgetStaleSteps();
  if (!sheet_.IsLockedAll()) undo_->undo();
}

void TSpread::Redo() {
  ForgetStaleSteps();
  if (!sheet_.IsLockedAll()) undo_->redo();
}

void TSpread::Restore(const grid::SavedBlock& saved) {
  if (saved.wholeRows) {
    {
      RedrawGuard guard(*this);
      grid::RestoreBlock(sheet_, saved);
      const int row = std::min(saved.block.row1, sheet_.MaxRows());
      sheet_.SetActiveCell(row >= 1 ? 1 : -1, row >= 1 ? row : -1);
    }
    ShowChangedBlock({});
    return;
  }
  grid::RestoreBlock(sheet_, saved);
  if (redrawOff_ == 0) model_->CellsChanged(saved.block.col1, saved.block.row1, saved.block.col2, saved.block.row2);
  ShowChangedBlock(saved.block);
}

// After an undo or redo the user sees what came back: the block selected, its first cell
// active.
void TSpread::ShowChangedBlock(const grid::Block& block) {
  if (redrawOff_ > 0) return;
  if (!block.IsEmpty()) {
    SetActiveCell(block.col1, block.row1);
    SetSelectBlock(block);
  } else if (const grid::CellRef active = sheet_.ActiveCell(); active.col >= 1 && active.row >= 1) {
    SetActiveCell(active.col, active.row);
  }
  view_->setFocus();
}

void TSpread::SetActiveCell(int col, int row) {
  sheet_.SetActiveCell(col, row);
  if (redrawOff_ > 0) return;
  const QModelIndex index = model_->index(row - 1, col - 1);
  if (!index.isValid()) return;
  view_->setCurrentIndex(index);
  view_->scrollTo(index);
}

void TSpread::ShowRow(int row) {
  const QModelIndex index = model_->index(row - 1, 0);
  if (index.isValid()) view_->scrollTo(index, QAbstractItemView::PositionAtTop);
}

void TSpread::SetSelectBlock(const grid::Block& block) {
  sheet_.SetSelectBlock(block);
  if (block.IsEmpty()) {
    view_->clearSelection();
    return;
  }
  const QItemSelection selection(model_->index(block.row1 - 1, block.col1 - 1),
                                 model_->index(block.row2 - 1, block.col2 - 1));
  view_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void TSpread::SyncSelection() {
  const QItemSelection selection = view_->selectionModel()->selection();
  grid::Block block;
  for (const QItemSelectionRange& range : selection) {
    if (block.IsEmpty()) {
      block = {range.left() + 1, range.top() + 1, range.right() + 1, range.bottom() + 1};
      continue;
    }
    block.col1 = std::min(block.col1, range.left() + 1);
    block.row1 = std::min(block.row1, range.top() + 1);
    block.col2 = std::max(block.col2, range.right() + 1);
    block.row2 = std::max(block.row2, range.bottom() + 1);
  }
  sheet_.SetSelectBlock(block);
}

bool TSpread::ShowFailure(const std::optional<grid::GridFailure>& failure) {
  if (!failure) return true;
  GetPrompter().Message(window(), failure->message, MessageIcon::Warning);
  SetActiveCell(failure->cell.col, failure->cell.row);
  view_->setFocus();
  return false;
}

bool TSpread::CheckEmptyCells(int rowCount, int firstCol, int lastCol, const std::string& entity) {
  return ShowFailure(grid::CheckEmptyCells(sheet_, rowCount, firstCol, lastCol, entity));
}

void TSpread::SetData(int col, int row, const std::string& text) {
  sheet_.SetData(col, row, text);
  if (redrawOff_ == 0) model_->CellsChanged(col, row, col, row);
}

bool TSpread::FillSelection(int col, int row, bool lock) {
  if (lock || !grid::CanFill(sheet_, col, row)) return false;
  const std::vector<std::string> entries = {
      res::LoadStringOr(res::kStrFillCopy, "Copy this value to the selected cells"),
      res::LoadStringOr(res::kStrFillSeries, "Fill the selected cells as a series")};
  const int choice = GetPrompter().ChooseFromMenu(this, entries);
  if (choice < 0) return true;
  const grid::Block block = sheet_.SelectBlock();
  const grid::FillMode mode = choice == 0 ? grid::FillMode::Copy : grid::FillMode::Series;
  ChangeCells("Fill", {col, block.row1, col, block.row2},
              [&](grid::Sheet& sheet) { grid::FillSelection(sheet, col, row, mode); });
  return true;
}

grid::Block TSpread::SelectionOrActiveCell() {
  SyncSelection();
  grid::Block block = sheet_.SelectBlock();
  if (block.IsEmpty()) {
    const grid::CellRef at = sheet_.ActiveCell();
    block = {at.col, at.row, at.col, at.row};
  }
  return block;
}

void TSpread::CopySelection() {
  const grid::Block block = SelectionOrActiveCell();
  QApplication::clipboard()->setText(QString::fromStdString(grid::CopyBlock(sheet_, block)));
}

void TSpread::PasteClipboard() {
  if (sheet_.IsLockedAll()) return;
  SyncSelection();
  grid::PastePlan plan = grid::PlanPaste(sheet_, sheet_.SelectBlock(), sheet_.ActiveCell(),
                                         QApplication::clipboard()->text().toStdString());
  if (!ShowFailure(plan.refusal)) return;
  const grid::Block block = plan.writes.block;
  if (!WriteCells("Paste", std::move(plan.writes))) return;
  SetActiveCell(block.col1, block.row1);
  SetSelectBlock(block);
}

bool TSpread::WriteCells(const std::string& stepName, grid::CellWrites writes) {
  if (writes.block.IsEmpty() || sheet_.IsLockedAll()) return false;
  if (!ShowFailure(grid::CheckWrites(sheet_, writes))) return false;
  ChangeCells(stepName, writes.block, [&](grid::Sheet& sheet) { grid::ApplyWrites(sheet, writes); });
  return true;
}

void TSpread::CutSelection() {
  if (sheet_.IsLockedAll()) return;
  CopySelection();
  ClearSelection();
}

void TSpread::ClearSelection() {
  const grid::Block block = SelectionOrActiveCell();
  if (block.IsEmpty() || sheet_.IsLockedAll()) return;
  ChangeCells("Clear", block, [&](grid::Sheet& sheet) {
    for (int row = block.row1; row <= block.row2; ++row)
      for (int col = block.col1; col <= block.col2; ++col)
        if (!sheet.IsLocked(col, row)) sheet.ClearData(col, row);
  });
}

bool TSpread::ExportGrid(const std::string& title) {
  FileDialogRequest request;
  request.title = res::LoadStringOr(res::kStrExportTitle, "Export Spreadsheet Data");
  request.defaultExtension = "htm";
  request.defaultName = "*.htm";
  request.filters = {res::LoadStringOr(res::kStrExportFilterHtml, "HTML File (*.htm)"),
                     res::LoadStringOr(res::kStrExportFilterText, "Tab Delimited Text File (*.txt)"),
                     res::LoadStringOr(res::kStrExportFilterXls, "Excel Book File (*.xls)"),
                     res::LoadStringOr(res::kStrExportFilterXlsx, "Excel Workbook (*.xlsx)")};
  // Appending keeps what the file holds, so there is no replacing to ask about.
  const bool append = prefs::ReadSpreadsheetSettings().appendSave;
  request.confirmReplace = !append;
  const std::string path = GetPrompter().SaveFileName(window(), request);
  if (path.empty()) return false;
  if (const auto failure = grid::ExportSheet(sheet_, path, append, title)) {
    GetPrompter().Message(window(), *failure, MessageIcon::Warning);
    return false;
  }
  return true;
}

bool TSpread::PrintGrid(const std::string& title) {
  const std::string question = res::LoadStringOr(
      res::kStrPrintQuestion, "This will print the selected items to the default printer.\nDo you want to continue?");
  if (!GetPrompter().Question(window(), question)) return false;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(QStringLiteral("Norvane"));  // the print job's name
  if (!GetPrompter().PrintSetup(window(), printer)) return false;
  SyncSelection();
  if (PrintBlock(printer, sheet_.SelectBlock(), title)) return true;
  const QString device = printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
  std::string message = res::LoadStringOr(res::kStrPrintFailed, "The table could not be printed on \"%s\".");
  if (const size_t at = message.find("%s"); at != std::string::npos) message.replace(at, 2, device.toStdString());
  GetPrompter().Message(window(), message, MessageIcon::Warning);
  return false;
}

bool TSpread::PrintBlock(QPrinter& printer, const grid::Block& block, const std::string& title, int* pages) {
  GridPrinter layout(sheet_, block, title);
  const bool printed = layout.Print(printer);
  if (pages) *pages = layout.PageCount();
  return printed;
}
