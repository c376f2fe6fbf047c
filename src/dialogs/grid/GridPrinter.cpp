#include "dialogs/grid/GridPrinter.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <cmath>

#include "resources/grid_ids.h"
#include "resources/resources.h"
#include "tools/format.h"

namespace {

QColor ToQColor(grid::Color c) { return QColor((c >> 16) & 0xFF, (c >> 8) & 0xFF, c & 0xFF); }

// A printed cell is one line: breaks and tabs inside a cell become blanks.
QString CellText(const std::string& text) {
  QString s = QString::fromStdString(text);
  for (QChar& c : s)
    if (c == '\n' || c == '\r' || c == '\t') c = ' ';
  return s;
}

Qt::Alignment ToAlignment(grid::Align align) {
  switch (align) {
    case grid::Align::Left: return Qt::AlignLeft | Qt::AlignVCenter;
    case grid::Align::Center: return Qt::AlignCenter;
    case grid::Align::Right: return Qt::AlignRight | Qt::AlignVCenter;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

// Sizes in printer pixels, before the scale that fits the table to the page's width.
struct GridPrinter::Layout {
  double scale = 1;
  double pageWidth = 0, pageHeight = 0;  // after scaling back: the page as the table sees it
  double titleHeight = 0, headingHeight = 0, rowHeight = 0, footerHeight = 0, padding = 0;
  std::vector<double> colWidths;  // per printed column
  double tableWidth = 0;
  int rowsPerPage = 1;
  int pageCount = 1;
};

GridPrinter::GridPrinter(const grid::Sheet& sheet, const grid::Block& block, std::string title)
    : sheet_(sheet), block_(block), title_(std::move(title)) {
  const bool oneCell = block_.col1 == block_.col2 && block_.row1 == block_.row2;
  if (block_.IsEmpty() || oneCell) block_ = {1, 1, sheet_.MaxCols(), sheet_.MaxRows()};
  block_.col1 = std::max(block_.col1, 1);
  block_.row1 = std::max(block_.row1, 1);
  block_.col2 = std::min(block_.col2, sheet_.MaxCols());
  block_.row2 = std::min(block_.row2, sheet_.MaxRows());
  if (block_.col1 > 1 && sheet_.MaxCols() >= 1) columns_.push_back(1);
  for (int col = block_.col1; col <= block_.col2; ++col) columns_.push_back(col);
  cellFont_ = QGuiApplication::font();
  cellFont_.setPointSizeF(8);
  headingFont_ = cellFont_;
  headingFont_.setBold(true);
  titleFont_ = cellFont_;
  titleFont_.setPointSizeF(12);
  titleFont_.setBold(true);
}

GridPrinter::Layout GridPrinter::Measure(QPrinter& printer) const {
  Layout l;
  const QFontMetricsF cell(cellFont_, &printer), heading(headingFont_, &printer), title(titleFont_, &printer);
  l.padding = cell.averageCharWidth() * 0.6;
  l.rowHeight = std::ceil(cell.height() * 1.4);
  l.headingHeight = std::ceil(heading.height() * 1.6);
  l.titleHeight = title_.empty() ? 0 : std::ceil(title.height() * 1.8);
  l.footerHeight = std::ceil(cell.height() * 2.0);
  for (int col : columns_) {
    const double byWidth = sheet_.GetColWidth(col) * cell.averageCharWidth();
    const double byHeading = heading.horizontalAdvance(CellText(sheet_.GetData(col, 0)));
    // A character's slack, so that the printer's own hinting never clips a heading.
    l.colWidths.push_back(std::ceil(std::max(byWidth, byHeading) + 2 * l.padding + cell.averageCharWidth()));
  }
  for (double w : l.colWidths) l.tableWidth += w;

  // Wide tables go landscape, and are scaled down if even that is too narrow.
  auto paintRect = [&] { return printer.pageLayout().paintRectPixels(printer.resolution()); };
  if (l.tableWidth > paintRect().width() && printer.pageLayout().orientation() == QPageLayout::Portrait)
    printer.setPageOrientation(QPageLayout::Landscape);
  const QRect page = paintRect();
  l.scale = l.tableWidth > page.width() ? page.width() / l.tableWidth : 1.0;
  l.pageWidth = page.width() / l.scale;
  l.pageHeight = page.height() / l.scale;
  const double body = l.pageHeight - l.titleHeight - l.headingHeight - l.footerHeight;
  l.rowsPerPage = std::max(1, static_cast<int>(std::floor(body / l.rowHeight)));
  const int rows = block_.IsEmpty() ? 0 : block_.row2 - block_.row1 + 1;
  l.pageCount = std::max(1, (rows + l.rowsPerPage - 1) / l.rowsPerPage);
  return l;
}

bool GridPrinter::Print(QPrinter& printer) {
  pages_ = 0;
  QMarginsF margins = printer.pageLayout().minimumMargins();
  const QMarginsF least = QMarginsF(1, 1, 1, 1) * kMarginMillimetres;
  const double toMillimetres = 25.4 / 72;  // minimum margins are in points
  margins = QMarginsF(std::max(least.left(), margins.left() * toMillimetres),
                      std::max(least.top(), margins.top() * toMillimetres),
                      std::max(least.right(), margins.right() * toMillimetres),
                      std::max(least.bottom(), margins.bottom() * toMillimetres));
  printer.setPageMargins(margins, QPageLayout::Millimeter);
  const Layout layout = Measure(printer);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  for (int page = 0; page < layout.pageCount; ++page) {
    if (page > 0 && !printer.newPage()) return false;
    const int first = block_.row1 + page * layout.rowsPerPage;
    const int last = std::min(block_.row2, first + layout.rowsPerPage - 1);
    PrintPage(painter, layout, page, first, block_.IsEmpty() ? first - 1 : last);
    ++pages_;
  }
  return painter.end();
}

void GridPrinter::PrintPage(QPainter& painter, const Layout& l, int page, int firstRow, int lastRow) const {
  painter.save();
  painter.scale(l.scale, l.scale);
  const QPen rule(QColor(0x80, 0x80, 0x80), 0);

  double y = 0;
  if (!title_.empty()) {
    painter.setFont(titleFont_);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(0, 0, l.pageWidth, l.titleHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     CellText(title_));
    y = l.titleHeight;
  }

  // Column headings on every page.
  painter.setFont(headingFont_);
  double x = 0;
  for (size_t i = 0; i < l.colWidths.size(); ++i) {
    const QRectF box(x, y, l.colWidths[i], l.headingHeight);
    painter.fillRect(box, QColor(0xE8, 0xE8, 0xE8));
    painter.setPen(rule);
    painter.drawRect(box);
    painter.setPen(Qt::black);
    const QRectF inner = box.adjusted(l.padding, 0, -l.padding, 0);
    painter.drawText(inner, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(CellText(sheet_.GetData(columns_[i], 0)),
                                                      Qt::ElideRight, int(inner.width())));
    x += l.colWidths[i];
  }
  y += l.headingHeight;

  painter.setFont(cellFont_);
  const QFontMetrics metrics = painter.fontMetrics();
  const grid::Color even = sheet_.EvenRowColor(), odd = sheet_.OddRowColor();
  for (int row = firstRow; row <= lastRow; ++row) {
    x = 0;
    const grid::Color band = row % 2 == 0 ? even : odd;
    for (size_t i = 0; i < l.colWidths.size(); ++i) {
      const int col = columns_[i];
      const QRectF box(x, y, l.colWidths[i], l.rowHeight);
      const grid::Color back = sheet_.GetBackColor(col, row);
      if (back != grid::kNoColor)
        painter.fillRect(box, ToQColor(back));
      else if (band != 0xFFFFFF)
        painter.fillRect(box, ToQColor(band));
      painter.setPen(rule);
      painter.drawRect(box);
      const grid::Color fore = sheet_.GetForeColor(col, row);
      painter.setPen(fore == grid::kNoColor ? QColor(Qt::black) : ToQColor(fore));
      const QRectF inner = box.adjusted(l.padding, 0, -l.padding, 0);
      painter.drawText(inner, ToAlignment(sheet_.GetColAlign(col)),
                       metrics.elidedText(CellText(sheet_.GetData(col, row)), Qt::ElideRight, int(inner.width())));
      x += l.colWidths[i];
    }
    y += l.rowHeight;
  }

  // The string table's text is not trusted as a printf format: its two %d are filled here.
  std::string footer = res::LoadStringOr(res::kStrPrintPage, "Page %d of %d");
  for (int value : {page + 1, l.pageCount})
    if (const size_t at = footer.find("%d"); at != std::string::npos) footer.replace(at, 2, tools::Format("%d", value));
  painter.setPen(Qt::black);
  painter.drawText(QRectF(0, l.pageHeight - l.footerHeight, l.pageWidth, l.footerHeight), Qt::AlignCenter,
                   QString::fromStdString(footer));
  painter.restore();
}
