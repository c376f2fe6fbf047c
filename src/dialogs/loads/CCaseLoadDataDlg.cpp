#include "dialogs/loads/CCaseLoadDataDlg.h"

#include <memory>

#include "resources/case_loads_ids.h"

using caseloadgrid::LoadKind;

CCaseLoadDataDlg::CCaseLoadDataDlg(int templateId, LoadKind kind, QWidget* pParent)
    : CDataGridDlg(templateId, pParent), table_(caseloadgrid::LoadTable::Create(kind)) {
  OnCommand(res::kCtlLoadDeleteRows, [this] { OnDeleteRows(); });
}

GridEditLock CCaseLoadDataDlg::EditLock() const {
  GridEditLock how;
  how.disable.push_back(res::kCtlLoadDeleteRows);
  return how;
}

caseloadgrid::LoadLists CCaseLoadDataDlg::Lists() const {
  const auto span = [](const auto* list) {
    using T = typename std::remove_pointer_t<decltype(list)>::value_type;
    return list ? std::span<const T>(*list) : std::span<const T>();
  };
  return {span(m_pLoadCases), span(m_pNodes), span(m_pMembers), span(m_pShells), span(m_pBricks)};
}

void CCaseLoadDataDlg::Refresh() {
  static const std::vector<fmCaseLoad> none;
  TSpread::RedrawGuard guard(m_Spread);
  table_->Fill(m_Spread.sheet(), m_pCaseLoads ? *m_pCaseLoads : none, Lists(), *m_pUnits, m_crAlternateRowColor,
               IsReadOnly());
}

bool CCaseLoadDataDlg::Save() {
  static const std::vector<fmCaseLoad> none;
  caseloadgrid::ReadResult result = table_->Read(m_Spread.sheet(), m_pCaseLoads ? *m_pCaseLoads : none, Lists());
  if (!m_Spread.ShowFailure(result.failure)) return false;
  if (m_pCaseLoads) *m_pCaseLoads = std::move(result.caseLoads);
  return true;
}

void CCaseLoadDataDlg::PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) {
  table_->PrepareNewRows(sheet, firstRow, lastRow);
}

void CCaseLoadDataDlg::OnDeleteRows() {
  if (IsReadOnly()) return;
  grid::Block block = m_Spread.sheet().SelectBlock();
  if (block.IsEmpty()) {
    const grid::CellRef active = m_Spread.sheet().ActiveCell();
    if (active.row < 1 || active.row > m_Spread.sheet().MaxRows()) return;
    block = {1, active.row, 1, active.row};
  }
  // The rows' records go with their rows when the deletion is undone or redone.
  const std::vector<int64_t> before = table_->RowOrigins();
  auto after = std::make_shared<std::vector<int64_t>>();
  m_Spread.ChangeRows(
      "Delete Rows", block.row1,
      [&](grid::Sheet& rows) {
        table_->DeleteRows(rows, block.row1, block.row2);
        rows.SetSelectBlock({});
      },
      [this, before, after](bool undone) { table_->SetRowOrigins(undone ? before : *after); });
  *after = table_->RowOrigins();
  m_Spread.SetSelectBlock({});
}

CNodalLoadDataDlg::CNodalLoadDataDlg(QWidget* p) : CCaseLoadDataDlg(res::kIddNodalLoadData, LoadKind::Nodal, p) {}
CPointLoadDataDlg::CPointLoadDataDlg(QWidget* p) : CCaseLoadDataDlg(res::kIddPointLoadData, LoadKind::Point, p) {}
CLineLoadDataDlg::CLineLoadDataDlg(QWidget* p) : CCaseLoadDataDlg(res::kIddLineLoadData, LoadKind::Line, p) {}
CShellLoadDataDlg::CShellLoadDataDlg(QWidget* p) : CCaseLoadDataDlg(res::kIddShellLoadData, LoadKind::Surface, p) {}
CAreaLoadDataDlg::CAreaLoadDataDlg(QWidget* p) : CCaseLoadDataDlg(res::kIddAreaLoadData, LoadKind::Area, p) {}
CMemberThermalLoadDataDlg::CMemberThermalLoadDataDlg(QWidget* p)
    : CCaseLoadDataDlg(res::kIddMemberThermalLoadData, LoadKind::MemberThermal, p) {}
CShell4ThermalLoadDataDlg::CShell4ThermalLoadDataDlg(QWidget* p)
    : CCaseLoadDataDlg(res::kIddShell4ThermalLoadData, LoadKind::Shell4Thermal, p) {}
CBrickThermalLoadDataDlg::CBrickThermalLoadDataDlg(QWidget* p)
    : CCaseLoadDataDlg(res::kIddBrickThermalLoadData, LoadKind::BrickThermal, p) {}
CNodalMassDataDlg::CNodalMassDataDlg(QWidget* p) : CCaseLoadDataDlg(res::kIddNodalMassData, LoadKind::NodalMass, p) {}
CCombMassDataDlg::CCombMassDataDlg(QWidget* p) : CCaseLoadDataDlg(res::kIddCombMassData, LoadKind::CombMass, p) {}
