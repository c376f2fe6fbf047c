#include "dialogs/design/CPropertyGridDlg.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>

#include "resources/grid_ids.h"
#include "tools/parse.h"

GridEditLock CPropertyGridDlg::EditLock() const {
  GridEditLock how;
  how.disable = {IDOK, res::kCtlNewRowCount, res::kCtlNewRows};
  for (int id : EditingControls()) how.disable.push_back(id);
  how.message = kModelLockedShort;
  return how;
}

QSize CPropertyGridDlg::sizeHint() const {
  QSize hint = CDataGridDlg::sizeHint();
  const QTableView* view = m_Spread.view();
  if (!view) return hint;
  // The table's own width: row headers, every column, the frame and a vertical scroll bar.
  const int table = view->verticalHeader()->width() + view->horizontalHeader()->length() + 2 * view->frameWidth() +
                    view->verticalScrollBar()->sizeHint().width();
  const int extra = table - m_Spread.sizeHint().width();
  if (extra > 0) hint.setWidth(std::min(hint.width() + extra, 1800));
  return hint;
}

int CPropertyGridDlg::ChooseTargetRow(int labelColumn, const char* question, bool ask) {
  const grid::CellRef active = m_Spread.GetActiveCell();
  if (active.row >= 2 && active.row <= m_Spread.sheet().MaxRows()) {
    if (ask && !tools::Trim(m_Spread.GetData(labelColumn, active.row)).empty() && !AskYesNo(question)) return 0;
    return active.row;
  }
  return m_Spread.AddRows(1, true);
}

void CPropertyGridDlg::ActivateRow(int row) {
  if (row < 1 || row > m_Spread.sheet().MaxRows()) return;
  m_Spread.SetActiveCell(1, row);
  m_Spread.ShowRow(row);
}
