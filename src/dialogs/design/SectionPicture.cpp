#include "dialogs/design/SectionPicture.h"

#include <QLayout>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "dialogs/frame/CDialog.h"

SectionPicture::SectionPicture(QWidget* parent) : QWidget(parent) {
  setMinimumSize(220, 220);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt::white);
  setPalette(p);
}

bool SectionPicture::CreateInPlace(CDialog* parent, int placeholderId) {
  QWidget* placeholder = parent->GetDlgItem(placeholderId);
  if (!placeholder) return false;
  setParent(placeholder->parentWidget());
  setObjectName(QString("picture_%1").arg(placeholderId));
  if (QLayout* layout = placeholder->parentWidget()->layout())
    if (QLayoutItem* old = layout->replaceWidget(placeholder, this, Qt::FindChildrenRecursively)) delete old;
  placeholder->hide();
  show();
  return true;
}

void SectionPicture::SetOutline(design::Outline outline) {
  outline_ = std::move(outline);
  update();
}

namespace {

void Arrow(QPainter& p, QPointF tip, QPointF from) {
  const QPointF d = tip - from;
  const double len = std::hypot(d.x(), d.y());
  if (len <= 0) return;
  const QPointF u = d / len, n(-u.y(), u.x());
  const double s = 6;
  p.drawPolygon(QPolygonF({tip, tip - u * s + n * (s / 2.5), tip - u * s - n * (s / 2.5)}));
}

}  // namespace

void SectionPicture::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  if (outline_.IsEmpty() || !(outline_.width > 0) || !(outline_.height > 0)) {
    p.setPen(Qt::gray);
    p.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, placeholderText_);
    return;
  }
  QFont font = p.font();
  font.setPointSizeF(std::max(7.0, font.pointSizeF() - 1));
  p.setFont(font);
  const QFontMetricsF metrics(font);

  // Uniform scale, leaving room beside the shape for the dimension lines and their texts.
  const double marginX = std::min(width() * 0.25, 60.0), marginY = std::min(height() * 0.2, 48.0);
  const double sx = (width() - 2 * marginX) / outline_.width, sy = (height() - 2 * marginY) / outline_.height;
  const double scale = std::max(1e-9, std::min(sx, sy));
  const QPointF origin((width() - outline_.width * scale) / 2, (height() + outline_.height * scale) / 2);
  const auto map = [&](design::Point q) { return QPointF(origin.x() + q.x * scale, origin.y() - q.y * scale); };

  QPainterPath path;
  path.setFillRule(Qt::OddEvenFill);
  for (const auto& loop : outline_.loops) {
    if (loop.empty()) continue;
    path.moveTo(map(loop[0]));
    for (size_t i = 1; i < loop.size(); ++i) path.lineTo(map(loop[i]));
    path.closeSubpath();
  }
  p.setPen(QPen(QColor(0x1f, 0x3a, 0x5f), 1.6));
  p.setBrush(QColor(0xb9, 0xcc, 0xe4));
  p.drawPath(path);

  const QColor ink(0x8a, 0x1c, 0x1c);
  const QRectF inside = QRectF(rect()).adjusted(2, 2, -2, -2);
  for (const auto& m : outline_.marks) {
    QPointF a = map(m.from), b = map(m.to);
    if (QLineF(a, b).length() <= 0) continue;
    // The offset goes to the left of the direction from -> to, in model units (y up).
    const double dx = m.to.x - m.from.x, dy = m.to.y - m.from.y, len = std::hypot(dx, dy);
    const QPointF shift = len > 0 ? QPointF(-dy / len * m.offset * scale, -dx / len * m.offset * scale) : QPointF();
    p.setPen(QPen(ink, 0.8, Qt::DashLine));
    if (m.offset != 0) {
      p.drawLine(a, a + shift * 1.1);
      p.drawLine(b, b + shift * 1.1);
    }
    a += shift;
    b += shift;
    p.setPen(QPen(ink, 1.0));
    p.setBrush(ink);
    p.drawLine(a, b);
    Arrow(p, a, b);
    Arrow(p, b, a);

    const QString text = QString::fromStdString(m.text);
    const QSizeF size(metrics.horizontalAdvance(text) + 4, metrics.height());
    const QPointF mid = (a + b) / 2;
    p.setPen(ink);
    if (std::abs(dx) >= std::abs(dy)) {
      // Along a horizontal line: above or below it, on the side away from the shape.
      const double y = shift.y() > 0 ? mid.y() + 3 : mid.y() - 3 - size.height();
      QRectF place(QPointF(mid.x() - size.width() / 2, y), size);
      if (m.offset == 0) place.moveLeft(std::max(a.x(), b.x()) + 6);  // a short width inside the shape
      // Keep every text inside the picture.
      place.moveLeft(std::clamp(place.left(), inside.left(), std::max(inside.left(), inside.right() - place.width())));
      place.moveTop(std::clamp(place.top(), inside.top(), std::max(inside.top(), inside.bottom() - place.height())));
      p.drawText(place, Qt::AlignCenter, text);
    } else {
      // Along a vertical line the text reads upwards, as on a drawing, outside the line.
      const double side = shift.x() >= 0 ? 1 : -1;
      const double x = std::clamp(mid.x() + side * (size.height() / 2 + 2), inside.left() + size.height() / 2,
                                  inside.right() - size.height() / 2);
      const double y = std::clamp(mid.y(), inside.top() + size.width() / 2,
                                  std::max(inside.top() + size.width() / 2, inside.bottom() - size.width() / 2));
      p.save();
      p.translate(x, y);
      p.rotate(-90);
      p.drawText(QRectF(-size.width() / 2, -size.height() / 2, size.width(), size.height()), Qt::AlignCenter, text);
      p.restore();
    }
  }
}
