#include "dialogs/grid/TSpread.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLayout>
#include <QPrinter>
#include <QScrollBar>

#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/Preferences.h"
#include "dialogs/grid/SheetModel.h"
#include "dialogs/grid/GridPrinter.h"
#include "dialogs/grid/SheetView.h"
#include "dialogs/grid/export.h"
#include "dialogs/grid/grid_ops.h"
#include "resources/grid_ids.h"
#include "resources/resources.h"

TSpread::TSpread() : model_(new SheetModel(sheet_, this)), view_(new SheetView(*this, this)) {
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
  // The view and model read the sheet, a member that goes before QWidget deletes children.
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
    const grid::CellRef active = spread_.sheet_.ActiveCell();
    if (active.col >= 1 && active.row >= 1) spread_.SetActiveCell(active.col, active.row);
  }
}

int TSpread::AddRows(int count, bool numberIds) {
  int first = 0;
  {
    RedrawGuard guard(*this);
    first = grid::AddRows(sheet_, count, numberIds);
  }
  ShowRow(first);
  return first;
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
  grid::FillSelection(sheet_, col, row, choice == 0 ? grid::FillMode::Copy : grid::FillMode::Series);
  if (!block.IsEmpty()) model_->CellsChanged(col, block.row1, col, block.row2);
  return true;
}

void TSpread::CopySelection() {
  SyncSelection();
  QApplication::clipboard()->setText(QString::fromStdString(grid::CopyBlock(sheet_, sheet_.SelectBlock())));
}

void TSpread::PasteClipboard() {
  const grid::CellRef at = sheet_.ActiveCell();
  if (at.col < 1 || at.row < 1 || sheet_.IsLockedAll()) return;
  const grid::Block written = grid::PasteText(sheet_, at.col, at.row, QApplication::clipboard()->text().toStdString());
  if (!written.IsEmpty()) model_->CellsChanged(written.col1, written.row1, written.col2, written.row2);
}

void TSpread::ClearSelection() {
  SyncSelection();
  const grid::Block block = sheet_.SelectBlock();
  if (block.IsEmpty() || sheet_.IsLockedAll()) return;
  for (int row = block.row1; row <= block.row2; ++row)
    for (int col = block.col1; col <= block.col2; ++col)
      if (!sheet_.IsLocked(col, row)) sheet_.ClearData(col, row);
  model_->CellsChanged(block.col1, block.row1, block.col2, block.row2);
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
  const std::string path = GetPrompter().SaveFileName(window(), request);
  if (path.empty()) return false;
  const bool append = prefs::ReadSpreadsheetSettings().appendSave;
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
