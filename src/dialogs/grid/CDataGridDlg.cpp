#include "dialogs/grid/CDataGridDlg.h"

#include <QKeyEvent>

#include "dialogs/frame/DataExchange.h"
#include "resources/grid_ids.h"

CDataGridDlg::CDataGridDlg(int templateId, QWidget* pParent) : CDialog(templateId, pParent) { Connect(); }

CDataGridDlg::CDataGridDlg(const frame::FormBase& form, QWidget* pParent) : CDialog(form, pParent) { Connect(); }

void CDataGridDlg::Connect() {
  OnCommand(res::kCtlNewRows, [this] { OnNewRows(); });
  OnCommand(res::kCtlPrint, [this] { OnPrint(); });
  OnCommand(res::kCtlSave, [this] { OnSave(); });
  m_Spread.onRightClick = [this](int col, int row) { OnGridRClick(col, row); };
}

BOOL CDataGridDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  m_Spread.CreateInPlace(this, res::kCtlGridPlaceholder, res::kCtlGrid);
  if (QWidget* count = GetDlgItem(res::kCtlNewRowCount)) count->installEventFilter(this);
  Refresh();
  ApplyGridEditLock(m_bShowSelectedOnly, m_bModelLocked, EditLock());
  return 1;
}

void CDataGridDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Text(pDX, res::kCtlNewRowCount, m_nNewRows);
  DDV_MinMaxUInt(pDX, m_nNewRows, 1, 100000);
}

void CDataGridDlg::OnNewRows() {
  if (IsReadOnly() || !UpdateData(1)) return;
  m_Spread.AddRows(static_cast<int>(m_nNewRows), true,
                   [this](grid::Sheet& sheet, int first, int last) { PrepareNewRows(sheet, first, last); });
}

bool CDataGridDlg::eventFilter(QObject* watched, QEvent* event) {
  // Enter in the count field adds the rows instead of pressing OK.
  if (event->type() == QEvent::KeyPress && watched == GetDlgItem(res::kCtlNewRowCount)) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      PressButton(res::kCtlNewRows);
      return true;
    }
  }
  return CDialog::eventFilter(watched, event);
}

void CDataGridDlg::OnGridRClick(int col, int row) { m_Spread.FillSelection(col, row, IsReadOnly()); }

void CDataGridDlg::OnOK() {
  if (IsReadOnly()) return;
  if (!UpdateData(1)) return;
  if (!Save()) return;
  EndDialog(IDOK);
}
