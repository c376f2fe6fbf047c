#pragma once
#include <span>
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"
#include "dialogs/model/element_grid.h"

// What the member, shell and brick tables share: the node and material lists the rows are
// checked against, "New Rows" with the plain choices filled in, and the element engine's
// fill and read; each table adds its own element vector and property list.
class CElementDataDlg : public CDataGridDlg {
 public:
  std::vector<fmNd>* m_pNodes = nullptr;
  std::vector<fmMat>* m_pMaterials = nullptr;

  std::string PrintTitle() const override { return kind_.printTitle; }

 protected:
  CElementDataDlg(const frame::FormBase& form, const elementgrid::Kind& kind, QWidget* pParent);

  // The lists the drop-downs offer and the look-ups check.
  virtual elementgrid::ElementLists Lists() const;

  template <class Record>
  void FillRows(const std::vector<Record>& elements, std::vector<Record>& filled);
  template <class Record>
  bool SaveRows(std::vector<Record>& elements, const std::vector<Record>& filled);

  void PrepareNewRows(grid::Sheet& sheet, int firstRow, int lastRow) override;

  template <class T>
  static std::span<const T> ListOf(const std::vector<T>* list) {
    return list ? std::span<const T>(*list) : std::span<const T>();
  }

 private:
  const elementgrid::Kind& kind_;
};

template <class Record>
void CElementDataDlg::FillRows(const std::vector<Record>& elements, std::vector<Record>& filled) {
  filled = elementgrid::RowsToShow(elements, m_bShowSelectedOnly != 0);
  TSpread::RedrawGuard guard(m_Spread);
  elementgrid::Fill(m_Spread.sheet(), std::span<const Record>(filled), Lists(), m_crAlternateRowColor, IsReadOnly());
}

template <class Record>
bool CElementDataDlg::SaveRows(std::vector<Record>& elements, const std::vector<Record>& filled) {
  elementgrid::ReadResult<Record> result =
      elementgrid::Read(m_Spread.sheet(), std::span<const Record>(filled), Lists());
  if (!m_Spread.ShowFailure(result.failure)) return false;
  elements = std::move(result.elements);
  return true;
}
