#include "dialogs/boundary/CBoundaryDataDlg.h"

#include <QComboBox>
#include <memory>

#include "dialogs/grid/grid_ops.h"
#include "resources/boundary_ids.h"

using namespace res;

CBoundaryDataDlg::CBoundaryDataDlg(const frame::FormBase& form, QWidget* pParent) : CDataGridDlg(form, pParent) {
  OnCommand(kCtlGridEditAction, [this] { OnDeleteRows(); });
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
  const std::optional<grid::Block> rows = grid::RowsToDelete(m_Spread.sheet());
  if (!rows) return;
  const grid::Block block = *rows;
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

const frame::Form<CSuptDataDlg>& CSuptDataDlg::Description() {
  static const auto form = BoundaryForm<CSuptDataDlg>(
      kIddSuptData, "Supports", 1000,
      "X ... OZ: Fixed holds the node in that direction (global axes). Dx ... Doz: the displacement a Fixed "
      "direction is given, a settlement; 0 holds it where it is.");
  return form;
}
CSuptDataDlg::CSuptDataDlg(QWidget* p) : CBoundaryTableDlg(Description(), p) {}

const frame::Form<CSpringDataDlg>& CSpringDataDlg::Description() {
  using F = frame::Field<CSpringDataDlg>;
  static const auto form = BoundaryForm<CSpringDataDlg>(
      kIddSpringData, "Springs", 900,
      "Springs to ground in global axes, one row per node, member or shell; 0 is no spring.",
      {F::DropIndex("Springs of:", &CSpringDataDlg::m_nSpringType)
           .Items({"Nodes", "Members (line springs)", "Shells (surface springs)"})
           .At(frame::kSideBar, 4)});
  return form;
}

CSpringDataDlg::CSpringDataDlg(QWidget* p) : CBoundaryDataDlg(Description(), p) {
  OnSelChange(frame::IdOf(&CSpringDataDlg::m_nSpringType), [this] { OnSpringTypeChange(); });
}

BOOL CSpringDataDlg::OnInitDialog() {
  nodalCopy_ = m_pNodalSprings ? *m_pNodalSprings : std::vector<fmNodalSpring>();
  lineCopy_ = m_pLineSprings ? *m_pLineSprings : std::vector<fmLineSpring>();
  surfaceCopy_ = m_pSurfaceSprings ? *m_pSurfaceSprings : std::vector<fmSurfaceSpring>();
  if (m_nSpringType < kNodal || m_nSpringType > kSurface) m_nSpringType = kNodal;
  return CBoundaryDataDlg::OnInitDialog();
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
  auto* combo = Item<QComboBox>(frame::IdOf(&CSpringDataDlg::m_nSpringType));
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

const frame::Form<CCoupledSpringDataDlg>& CCoupledSpringDataDlg::Description() {
  static const auto form = BoundaryForm<CCoupledSpringDataDlg>(
      kIddCoupledSpringData, "Coupled Springs", 1020,
      "The upper triangle of the node's symmetric 6x6 stiffness. Terms coupling a translation with a rotation "
      "are forces per radian.");
  return form;
}
CCoupledSpringDataDlg::CCoupledSpringDataDlg(QWidget* p) : CBoundaryTableDlg(Description(), p) {}

const frame::Form<CMomentReleasesDataDlg>& CMomentReleasesDataDlg::Description() {
  static const auto form = BoundaryForm<CMomentReleasesDataDlg>(
      kIddMomentReleasesData, "Member End Releases", 1000,
      "End forces in the member's local axes. Released: the end does not pass that force on; My and Mz "
      "Released pin the end.");
  return form;
}
CMomentReleasesDataDlg::CMomentReleasesDataDlg(QWidget* p) : CBoundaryTableDlg(Description(), p) {}

const frame::Form<CMultiDofConstraintDataDlg>& CMultiDofConstraintDataDlg::Description() {
  static const auto form = BoundaryForm<CMultiDofConstraintDataDlg>(
      kIddMultiDofConstraintData, "Multi-DOF Constraints", 560,
      "The two degrees of freedom of each row move together.");
  return form;
}
CMultiDofConstraintDataDlg::CMultiDofConstraintDataDlg(QWidget* p) : CBoundaryTableDlg(Description(), p) {}

const frame::Form<CDiaphragmDataDlg>& CDiaphragmDataDlg::Description() {
  static const auto form = BoundaryForm<CDiaphragmDataDlg>(
      kIddDiaphragmData, "Rigid Diaphragms", 620,
      "Either a level (Y) or a list of nodes such as 5-9, 12. The floor follows its master node in X, Z and "
      "the rotation about Y.");
  return form;
}
CDiaphragmDataDlg::CDiaphragmDataDlg(QWidget* p) : CBoundaryTableDlg(Description(), p) {}

const frame::Form<CDriftNodeDataDlg>& CDriftNodeDataDlg::Description() {
  static const auto form = BoundaryForm<CDriftNodeDataDlg>(
      kIddDriftNodeData, "Drift Nodes", 420,
      "The drift stack from the bottom up. The first node is measured from the base, the level of the lowest "
      "support.");
  return form;
}
CDriftNodeDataDlg::CDriftNodeDataDlg(QWidget* p) : CBoundaryDataDlg(Description(), p) {}
void CDriftNodeDataDlg::Refresh() { FillFrom(table_, boundarygrid::DriftNodesOf(*m_pDriftNodes)); }
bool CDriftNodeDataDlg::Save() {
  std::vector<boundarygrid::DriftNode> nodes;
  if (!ReadInto(table_, nodes)) return false;
  *m_pDriftNodes = boundarygrid::DriftNodeIds(nodes);
  return true;
}
