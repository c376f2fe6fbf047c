#include "dialogs/grid/CDataGridDlg.h"

#include "dialogs/frame/DataExchange.h"
#include "resources/grid_ids.h"

CDataGridDlg::CDataGridDlg(int templateId, QWidget* pParent) : CDialog(templateId, pParent) {
  OnCommand(res::kCtlNewRows, [this] { OnNewRows(); });
  OnCommand(res::kCtlPrint, [this] { OnPrint(); });
  OnCommand(res::kCtlSave, [this] { OnSave(); });
  m_Spread.onRightClick = [this](int col, int row) { OnGridRClick(col, row); };
}

BOOL CDataGridDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  m_Spread.CreateInPlace(this, res::kCtlGridPlaceholder, res::kCtlGrid);
  Refresh();
  ApplyGridEditLock(m_bShowSelectedOnly, m_bModelLocked);
  return 1;
}

void CDataGridDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Text(pDX, res::kCtlNewRowCount, m_nNewRows);
  DDV_MinMaxUInt(pDX, m_nNewRows, 1, 100000);
}

void CDataGridDlg::OnNewRows() {
  if (IsReadOnly() || !UpdateData(1)) return;
  m_Spread.AddRows(static_cast<int>(m_nNewRows), true);
}

void CDataGridDlg::OnGridRClick(int col, int row) { m_Spread.FillSelection(col, row, IsReadOnly()); }

void CDataGridDlg::OnOK() {
  if (IsReadOnly()) return;
  if (!UpdateData(1)) return;
  if (!Save()) return;
  EndDialog(IDOK);
}
