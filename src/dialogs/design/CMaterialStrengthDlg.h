#pragma once
#include <vector>

#include "dialogs/design/CPropertyGridDlg.h"
#include "dialogs/design/material_grid.h"
#include "model/fm_material.h"

// The design strengths of the materials: one row per material, OK writes the strengths
// back into the host's records of the same rows.
class CMaterialStrengthDlg : public CPropertyGridDlg {
 public:
  std::vector<fmMat>* m_pMaterials = nullptr;

  void FillOneRow(const fmMat& material, int row);
  std::string PrintTitle() const override {
    return kind_ == matgrid::kConcrete ? "Concrete Material Strength Table" : "Steel Material Strength Table";
  }

 protected:
  CMaterialStrengthDlg(const frame::FormBase& form, matgrid::StrengthKind kind, QWidget* pParent)
      : CPropertyGridDlg(form, pParent), kind_(kind) {}
  void DoDataExchange(CDataExchange* pDX) override;
  void Refresh() override;
  bool Save() override;

 private:
  matgrid::StrengthKind kind_;
};

// Concrete: fc, fy and fys (flexural and shear reinforcement).
class CMaterialRcDlg : public CMaterialStrengthDlg {
 public:
  explicit CMaterialRcDlg(QWidget* pParent = nullptr);
  static const frame::Form<CMaterialRcDlg>& Description();
};

// Structural steel: Fy and Fu, kept in the records' fy and fys.
class CMaterialSteelDlg : public CMaterialStrengthDlg {
 public:
  explicit CMaterialSteelDlg(QWidget* pParent = nullptr);
  static const frame::Form<CMaterialSteelDlg>& Description();
};
