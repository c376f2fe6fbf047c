#include "dialogs/boundary/CBoundaryDataDlg.h"

#include <QComboBox>
#include <memory>

#include "resources/boundary_ids.h"
#include "resources/resources.h"

CBoundaryDataDlg::CBoundaryDataDlg(int templateId, QWidget* pParent) : CDataGridDlg(templateId, pParent) {
  OnCommand(res::kCtlDeleteRows, [this] { OnDeleteRows(); });
}

boundarygrid::Objects CBoundaryDataDlg::Objects() const {
  const auto span = [](const auto* list) {
    using T = typename std::remove_pointer_t<decltype(list)>::value_type;
    return list ? std::span<const T>(*list) : std::span<const T>();
  };
  return {span(m_pNodes), span(m_pMembers), span(m_pShells)};
}

void CBoundaryDataDlg::PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) {
  Table().PrepareNewRows(sheet, firstRow, lastRow);
}

void CBoundaryDataDlg::OnDeleteRows() {
  if (IsReadOnly()) return;
  grid::Block block = m_Spread.sheet().SelectBlock();
  if (block.IsEmpty()) {
    const grid::CellRef active = m_Spread.sheet().ActiveCell();
    if (active.row < 1 || active.row > m_Spread.sheet().MaxRows()) return;
    block = {1, active.row, 1, active.row};
  }
  // The rows' records go with their rows when the deletion is undone or redone.
  boundarygrid::TableBase& table = Table();
  const std::vector<int64_t> before = table.RowOrigins();
  auto after = std::make_shared<std::vector<int64_t>>();
  m_Spread.ChangeRows(
      "Delete Rows", block.row1,
      [&](grid::Sheet& rows) {
        table.DeleteRows(rows, block.row1, block.row2);
        rows.SetSelectBlock({});
      },
      [&table, before, after](bool undone) { table.SetRowOrigins(undone ? before : *after); });
  *after = table.RowOrigins();
  m_Spread.SetSelectBlock({});
}

CSuptDataDlg::CSuptDataDlg(QWidget* p) : CBoundaryDataDlg(res::kIddSuptData, p) {}
void CSuptDataDlg::Refresh() { FillFrom(table_, *m_pSupports); }
bool CSuptDataDlg::Save() { return ReadInto(table_, *m_pSupports); }

CSpringDataDlg::CSpringDataDlg(QWidget* p) : CBoundaryDataDlg(res::kIddSpringData, p) {
  OnSelChange(res::kCtlSpringType, [this] { OnSpringTypeChange(); });
}

BOOL CSpringDataDlg::OnInitDialog() {
  nodalCopy_ = m_pNodalSprings ? *m_pNodalSprings : std::vector<fmNodalSpring>();
  lineCopy_ = m_pLineSprings ? *m_pLineSprings : std::vector<fmLineSpring>();
  surfaceCopy_ = m_pSurfaceSprings ? *m_pSurfaceSprings : std::vector<fmSurfaceSpring>();
  if (m_nSpringType < kNodal || m_nSpringType > kSurface) m_nSpringType = kNodal;
  CBoundaryDataDlg::OnInitDialog();
  SetComboItems(res::kCtlSpringType, {res::LoadStringOr(res::kStrSpringNodal, "Nodes"),
                                      res::LoadStringOr(res::kStrSpringLine, "Members (line springs)"),
                                      res::LoadStringOr(res::kStrSpringSurface, "Shells (surface springs)")});
  if (auto* combo = Item<QComboBox>(res::kCtlSpringType)) {
    const QSignalBlocker quiet(combo);
    combo->setCurrentIndex(m_nSpringType);
  }
  return 1;
}

boundarygrid::TableBase& CSpringDataDlg::Table() const {
  if (m_nSpringType == kLine) return line_;
  if (m_nSpringType == kSurface) return surface_;
  return nodal_;
}

void CSpringDataDlg::Refresh() {
  if (m_nSpringType == kLine)
    FillFrom(line_, lineCopy_);
  else if (m_nSpringType == kSurface)
    FillFrom(surface_, surfaceCopy_);
  else
    FillFrom(nodal_, nodalCopy_);
}

bool CSpringDataDlg::ReadShown() {
  if (m_nSpringType == kLine) return ReadInto(line_, lineCopy_);
  if (m_nSpringType == kSurface) return ReadInto(surface_, surfaceCopy_);
  return ReadInto(nodal_, nodalCopy_);
}

void CSpringDataDlg::OnSpringTypeChange() {
  auto* combo = Item<QComboBox>(res::kCtlSpringType);
  if (!combo) return;
  const int chosen = combo->currentIndex();
  if (chosen == m_nSpringType || chosen < kNodal || chosen > kSurface) return;
  // A grid that does not read stays, with its refusal shown.
  if (!IsReadOnly() && !ReadShown()) {
    const QSignalBlocker quiet(combo);
    combo->setCurrentIndex(m_nSpringType);
    return;
  }
  m_nSpringType = chosen;
  Refresh();
}

bool CSpringDataDlg::Save() {
  if (!ReadShown()) return false;
  if (m_pNodalSprings) *m_pNodalSprings = nodalCopy_;
  if (m_pLineSprings) *m_pLineSprings = lineCopy_;
  if (m_pSurfaceSprings) *m_pSurfaceSprings = surfaceCopy_;
  return true;
}

CCoupledSpringDataDlg::CCoupledSpringDataDlg(QWidget* p) : CBoundaryDataDlg(res::kIddCoupledSpringData, p) {}
void CCoupledSpringDataDlg::Refresh() { FillFrom(table_, *m_pCoupledSprings); }
bool CCoupledSpringDataDlg::Save() { return ReadInto(table_, *m_pCoupledSprings); }

CMomentReleasesDataDlg::CMomentReleasesDataDlg(QWidget* p) : CBoundaryDataDlg(res::kIddMomentReleasesData, p) {}
void CMomentReleasesDataDlg::Refresh() { FillFrom(table_, *m_pReleases); }
bool CMomentReleasesDataDlg::Save() { return ReadInto(table_, *m_pReleases); }

CMultiDofConstraintDataDlg::CMultiDofConstraintDataDlg(QWidget* p)
    : CBoundaryDataDlg(res::kIddMultiDofConstraintData, p) {}
void CMultiDofConstraintDataDlg::Refresh() { FillFrom(table_, *m_pConstraints); }
bool CMultiDofConstraintDataDlg::Save() { return ReadInto(table_, *m_pConstraints); }

CDiaphragmDataDlg::CDiaphragmDataDlg(QWidget* p) : CBoundaryDataDlg(res::kIddDiaphragmData, p) {}
void CDiaphragmDataDlg::Refresh() { FillFrom(table_, *m_pDiaphragms); }
bool CDiaphragmDataDlg::Save() { return ReadInto(table_, *m_pDiaphragms); }

CDriftNodeDataDlg::CDriftNodeDataDlg(QWidget* p) : CBoundaryDataDlg(res::kIddDriftNodeData, p) {}
void CDriftNodeDataDlg::Refresh() { FillFrom(table_, boundarygrid::DriftNodesOf(*m_pDriftNodes)); }
bool CDriftNodeDataDlg::Save() {
  std::vector<boundarygrid::DriftNode> nodes;
  if (!ReadInto(table_, nodes)) return false;
  *m_pDriftNodes = boundarygrid::DriftNodeIds(nodes);
  return true;
}
