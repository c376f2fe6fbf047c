#pragma once
#include <QFont>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"

class QPainter;
class QPrinter;

// Lays a block of a grid out on printed pages: the title as every page's heading, the
// column headings repeated under it, the rows in between ruled as a table, and "Page n of
// m" at the foot. A block wider than a portrait page turns the page to landscape; one wider
// still is scaled down to the page's width.
class GridPrinter {
 public:
  // An empty block, or a single cell, prints the whole grid. A block that leaves out column 1
  // still prints it at the left, so every printed row keeps its id.
  GridPrinter(const grid::Sheet& sheet, const grid::Block& block, std::string title);

  // Prints every page; false when the printer cannot be started (a PDF file that cannot be
  // written, a printer that is gone).
  bool Print(QPrinter& printer);
  // Pages of the last Print.
  int PageCount() const { return pages_; }
  const grid::Block& PrintedBlock() const { return block_; }
  const std::vector<int>& PrintedColumns() const { return columns_; }
  // The least page margin; the printer's own, where larger, is kept.
  static constexpr double kMarginMillimetres = 15;

 private:
  struct Layout;
  Layout Measure(QPrinter& printer) const;
  void PrintPage(QPainter& painter, const Layout& layout, int page, int firstRow, int lastRow) const;

  const grid::Sheet& sheet_;
  grid::Block block_;
  std::vector<int> columns_;
  std::string title_;
  QFont cellFont_;
  QFont headingFont_;
  QFont titleFont_;
  int pages_ = 0;
};
