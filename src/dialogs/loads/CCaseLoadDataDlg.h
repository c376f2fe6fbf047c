#pragma once
#include <memory>
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"
#include "dialogs/loads/case_load_grid.h"

// What the ten applied-load tables share: the host's load cases and their loads, the model's
// nodes and elements the rows are checked against, "Delete Rows", and the load-table engine's
// fill and read. OK replaces the loads of the table's kind in every case and leaves the other
// kinds alone.
class CCaseLoadDataDlg : public CDataGridDlg {
 public:
  std::vector<fmLoadCase>* m_pLoadCases = nullptr;
  std::vector<fmCaseLoad>* m_pCaseLoads = nullptr;  // one per load case, in case order
  std::vector<fmNd>* m_pNodes = nullptr;
  std::vector<fmBm>* m_pMembers = nullptr;
  std::vector<fmShell4>* m_pShells = nullptr;
  std::vector<fmBrick>* m_pBricks = nullptr;

  std::string PrintTitle() const override { return table_->Texts().printTitle; }
  caseloadgrid::LoadKind Kind() const { return table_->Kind(); }

 protected:
  CCaseLoadDataDlg(caseloadgrid::LoadKind kind, QWidget* pParent);
  // The kind's table: its template, caption and the note under the grid where it has one.
  static const frame::FormBase& DescriptionOf(caseloadgrid::LoadKind kind);

  void Refresh() override;
  bool Save() override;
  void PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) override;
  // Deletes the selected rows (the active cell's row when nothing is selected) as one step.
  void OnDeleteRows();

 private:
  caseloadgrid::LoadLists Lists() const;
  std::unique_ptr<caseloadgrid::LoadTable> table_;
};

// One table per load kind, each with its own description.
template <caseloadgrid::LoadKind kKind>
class CCaseLoadKindDlg : public CCaseLoadDataDlg {
 public:
  explicit CCaseLoadKindDlg(QWidget* pParent = nullptr) : CCaseLoadDataDlg(kKind, pParent) {}
  static const frame::FormBase& Description() { return DescriptionOf(kKind); }
};

class CNodalLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::Nodal> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CPointLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::Point> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CLineLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::Line> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CShellLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::Surface> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CAreaLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::Area> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CMemberThermalLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::MemberThermal> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CShell4ThermalLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::Shell4Thermal> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CBrickThermalLoadDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::BrickThermal> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CNodalMassDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::NodalMass> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
class CCombMassDataDlg : public CCaseLoadKindDlg<caseloadgrid::LoadKind::CombMass> {
  using CCaseLoadKindDlg::CCaseLoadKindDlg;
};
