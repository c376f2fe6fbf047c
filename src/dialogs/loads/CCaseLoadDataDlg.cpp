#include "dialogs/loads/CCaseLoadDataDlg.h"

#include <iterator>
#include <memory>

#include "dialogs/grid/grid_ops.h"
#include "resources/case_loads_ids.h"

using caseloadgrid::LoadKind;

const frame::FormBase& CCaseLoadDataDlg::DescriptionOf(LoadKind kind) {
  using F = frame::Field<CCaseLoadDataDlg>;
  struct Look {
    int templateId;
    const char* caption;
    const char* note = nullptr;
  };
  // In the order of the kinds.
  static const Look looks[] = {
      {res::kIddNodalLoadData, "Nodal Loads"},
      {res::kIddPointLoadData, "Member Point Loads"},
      {res::kIddLineLoadData, "Member Line Loads"},
      {res::kIddShellLoadData, "Shell Surface Loads"},
      {res::kIddAreaLoadData, "Area Loads",
       "Nodes: the corners of the loaded area in order around it. Two-way: each edge member carries its "
       "tributary area; one-way: the members parallel to the first edge carry the load."},
      {res::kIddMemberThermalLoadData, "Member Thermal Loads"},
      {res::kIddShell4ThermalLoadData, "Shell4 Thermal Loads"},
      {res::kIddBrickThermalLoadData, "Brick Thermal Loads"},
      {res::kIddNodalMassData, "Additional Nodal Masses",
       "Weight of the mass; a rotational mass as weight times length squared."},
      {res::kIddCombMassData, "Combination Masses",
       "The gravity loads of each load case listed, times its factor, become masses for dynamic analysis."},
  };
  static_assert(std::size(looks) == static_cast<size_t>(LoadKind::Count));
  static const std::vector<frame::Form<CCaseLoadDataDlg>> forms = [] {
    std::vector<frame::Form<CCaseLoadDataDlg>> all;
    for (const Look& look : looks) {
      std::vector<F> fields{F::Button("Delete Rows").Id(res::kCtlGridEditAction)};
      if (look.note) fields.push_back(F::Static(look.note).Span(1).Flags(res::kMultiline));
      all.push_back(TableForm<CCaseLoadDataDlg>(
          {.templateId = look.templateId, .caption = look.caption, .minWidth = 1020, .minHeight = 420}, fields));
    }
    return all;
  }();
  return forms[static_cast<size_t>(kind)];
}

CCaseLoadDataDlg::CCaseLoadDataDlg(LoadKind kind, QWidget* pParent)
    : CDataGridDlg(DescriptionOf(kind), pParent), table_(caseloadgrid::LoadTable::Create(kind)) {
  OnCommand(res::kCtlGridEditAction, [this] { OnDeleteRows(); });
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
  const std::optional<grid::Block> rows = grid::RowsToDelete(m_Spread.sheet());
  if (!rows) return;
  const grid::Block block = *rows;
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
