#pragma once
#include <memory>
#include <span>
#include <vector>

#include "dialogs/boundary/boundary_grid.h"
#include "dialogs/grid/CDataGridDlg.h"

// What the boundary and connection tables share: the model's nodes, members and shells the
// rows are checked against, "Delete Rows" (a record goes by deleting its row), and the
// boundary-table engine's fill and read. OK replaces the table's record kind and nothing else.
class CBoundaryDataDlg : public CDataGridDlg {
 public:
  std::vector<fmNd>* m_pNodes = nullptr;
  std::vector<fmBm>* m_pMembers = nullptr;
  std::vector<fmShell4>* m_pShells = nullptr;

  std::string PrintTitle() const override { return Table().Texts().printTitle; }

 protected:
  CBoundaryDataDlg(const frame::FormBase& form, QWidget* pParent);
  // A boundary table's description: the grid with its note below it, "Delete Rows" after
  // "New Rows", and `after` below "Save...".
  template <class Dlg>
  static frame::Form<Dlg> BoundaryForm(int templateId, const char* caption, int width, const char* note,
                                       std::vector<frame::Field<Dlg>> after = {}) {
    using F = frame::Field<Dlg>;
    return TableForm<Dlg>({.templateId = templateId, .caption = caption, .minWidth = width, .minHeight = 420},
                          {F::Static(note).Span(1).Flags(res::kMultiline),
                           F::Button("Delete Rows").Id(res::kCtlGridEditAction)},
                          std::move(after));
  }

  void PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) override;
  // Deletes the selected rows (the active cell's row when nothing is selected) as one step.
  void OnDeleteRows();

  // The table the grid shows now.
  virtual boundarygrid::TableBase& Table() const = 0;
  boundarygrid::Objects Objects() const;

  template <class Record>
  void FillFrom(boundarygrid::Table<Record>& table, const std::vector<Record>& records) {
    TSpread::RedrawGuard guard(m_Spread);
    table.Fill(m_Spread.sheet(), records, Objects(), *m_pUnits, m_crAlternateRowColor, IsReadOnly(),
               m_bShowSelectedOnly);
  }
  // Reads the grid into `out`; shows the first failure and leaves `out` as it was.
  template <class Record>
  bool ReadInto(const boundarygrid::Table<Record>& table, std::vector<Record>& out) {
    boundarygrid::ReadResult<Record> result = table.Read(m_Spread.sheet(), Objects());
    if (!m_Spread.ShowFailure(result.failure)) return false;
    out = std::move(result.records);
    return true;
  }
};

// A table of one record kind, kept in the host's list that the dialog's kRecords member
// points to.
template <class Dlg, class Record>
class CBoundaryTableDlg : public CBoundaryDataDlg {
 protected:
  using CBoundaryDataDlg::CBoundaryDataDlg;
  void Refresh() override { FillFrom(table_, *(static_cast<Dlg*>(this)->*Dlg::kRecords)); }
  bool Save() override { return ReadInto(table_, *(static_cast<Dlg*>(this)->*Dlg::kRecords)); }
  boundarygrid::TableBase& Table() const override { return table_; }

 private:
  mutable boundarygrid::Table<Record> table_;
};

class CSuptDataDlg : public CBoundaryTableDlg<CSuptDataDlg, fmSupport> {
 public:
  explicit CSuptDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CSuptDataDlg>& Description();
  std::vector<fmSupport>* m_pSupports = nullptr;
  static constexpr auto kRecords = &CSuptDataDlg::m_pSupports;
};

// Springs to ground of nodes, members (line springs) or shells (surface springs), one kind
// at a time, chosen by "Springs of:". Changing the kind keeps what the grid holds when it
// reads; OK writes all three kinds.
class CSpringDataDlg : public CBoundaryDataDlg {
 public:
  enum SpringType { kNodal = 0, kLine = 1, kSurface = 2 };
  explicit CSpringDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CSpringDataDlg>& Description();
  std::vector<fmNodalSpring>* m_pNodalSprings = nullptr;
  std::vector<fmLineSpring>* m_pLineSprings = nullptr;
  std::vector<fmSurfaceSpring>* m_pSurfaceSprings = nullptr;
  int32_t m_nSpringType = kNodal;  // the kind shown first

 protected:
  BOOL OnInitDialog() override;
  void Refresh() override;
  bool Save() override;
  boundarygrid::TableBase& Table() const override;
  void OnSpringTypeChange();

 private:
  // Reads the kind shown into its working copy.
  bool ReadShown();
  mutable boundarygrid::NodalSpringTable nodal_;
  mutable boundarygrid::LineSpringTable line_;
  mutable boundarygrid::SurfaceSpringTable surface_;
  std::vector<fmNodalSpring> nodalCopy_;
  std::vector<fmLineSpring> lineCopy_;
  std::vector<fmSurfaceSpring> surfaceCopy_;
};

class CCoupledSpringDataDlg : public CBoundaryTableDlg<CCoupledSpringDataDlg, fmCoupledSpring> {
 public:
  explicit CCoupledSpringDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CCoupledSpringDataDlg>& Description();
  std::vector<fmCoupledSpring>* m_pCoupledSprings = nullptr;
  static constexpr auto kRecords = &CCoupledSpringDataDlg::m_pCoupledSprings;
};

class CMomentReleasesDataDlg : public CBoundaryTableDlg<CMomentReleasesDataDlg, fmMemberRelease> {
 public:
  explicit CMomentReleasesDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CMomentReleasesDataDlg>& Description();
  std::vector<fmMemberRelease>* m_pReleases = nullptr;
  static constexpr auto kRecords = &CMomentReleasesDataDlg::m_pReleases;
};

class CMultiDofConstraintDataDlg : public CBoundaryTableDlg<CMultiDofConstraintDataDlg, fmConstraint> {
 public:
  explicit CMultiDofConstraintDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CMultiDofConstraintDataDlg>& Description();
  std::vector<fmConstraint>* m_pConstraints = nullptr;
  static constexpr auto kRecords = &CMultiDofConstraintDataDlg::m_pConstraints;
};

class CDiaphragmDataDlg : public CBoundaryTableDlg<CDiaphragmDataDlg, fmDiaphragm> {
 public:
  explicit CDiaphragmDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CDiaphragmDataDlg>& Description();
  std::vector<fmDiaphragm>* m_pDiaphragms = nullptr;
  static constexpr auto kRecords = &CDiaphragmDataDlg::m_pDiaphragms;
};

// The drift stack, from the bottom up, in row order.
class CDriftNodeDataDlg : public CBoundaryDataDlg {
 public:
  explicit CDriftNodeDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CDriftNodeDataDlg>& Description();
  std::vector<uint32_t>* m_pDriftNodes = nullptr;

 protected:
  void Refresh() override;
  bool Save() override;
  boundarygrid::TableBase& Table() const override { return table_; }

 private:
  mutable boundarygrid::DriftNodeTable table_;
};
