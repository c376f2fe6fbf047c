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
  CCaseLoadDataDlg(int templateId, caseloadgrid::LoadKind kind, QWidget* pParent);

  GridEditLock EditLock() const override;
  void Refresh() override;
  bool Save() override;
  void PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) override;
  // Deletes the selected rows (the active cell's row when nothing is selected) as one step.
  void OnDeleteRows();

 private:
  caseloadgrid::LoadLists Lists() const;
  std::unique_ptr<caseloadgrid::LoadTable> table_;
};

class CNodalLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CNodalLoadDataDlg(QWidget* pParent = nullptr);
};
class CPointLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CPointLoadDataDlg(QWidget* pParent = nullptr);
};
class CLineLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CLineLoadDataDlg(QWidget* pParent = nullptr);
};
class CShellLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CShellLoadDataDlg(QWidget* pParent = nullptr);
};
class CAreaLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CAreaLoadDataDlg(QWidget* pParent = nullptr);
};
class CMemberThermalLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CMemberThermalLoadDataDlg(QWidget* pParent = nullptr);
};
class CShell4ThermalLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CShell4ThermalLoadDataDlg(QWidget* pParent = nullptr);
};
class CBrickThermalLoadDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CBrickThermalLoadDataDlg(QWidget* pParent = nullptr);
};
class CNodalMassDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CNodalMassDataDlg(QWidget* pParent = nullptr);
};
class CCombMassDataDlg : public CCaseLoadDataDlg {
 public:
  explicit CCombMassDataDlg(QWidget* pParent = nullptr);
};
