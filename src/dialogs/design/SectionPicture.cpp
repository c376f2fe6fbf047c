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

// Whether a line runs through (or into) a text's box.
bool Crosses(const QLineF& line, const QRectF& box) {
  if (line.isNull()) return false;
  if (box.contains(line.p1()) || box.contains(line.p2())) return true;
  const QLineF edges[] = {{box.topLeft(), box.topRight()},
                          {box.topRight(), box.bottomRight()},
                          {box.bottomRight(), box.bottomLeft()},
                          {box.bottomLeft(), box.topLeft()}};
  QPointF at;
  for (const QLineF& e : edges)
    if (line.intersects(e, &at) == QLineF::BoundedIntersection) return true;
  return false;
}

}  // namespace

QFont SectionPicture::MarkFont() const {
  QFont f = font();
  f.setPointSizeF(std::max(7.0, f.pointSizeF() - 1));
  return f;
}

// Uniform scale, leaving room beside the shape for the dimension lines and their texts.
double SectionPicture::Scale() const {
  const double marginX = std::min(width() * 0.25, 60.0), marginY = std::min(height() * 0.2, 48.0);
  const double sx = (width() - 2 * marginX) / outline_.width, sy = (height() - 2 * marginY) / outline_.height;
  return std::max(1e-9, std::min(sx, sy));
}

QPointF SectionPicture::Origin(double scale) const {
  return QPointF((width() - outline_.width * scale) / 2, (height() + outline_.height * scale) / 2);
}

std::vector<SectionPicture::PlacedMark> SectionPicture::PlaceMarks() const {
  std::vector<PlacedMark> placed;
  if (outline_.IsEmpty() || !(outline_.width > 0) || !(outline_.height > 0)) return placed;
  const QFontMetricsF metrics(MarkFont());
  const double scale = Scale();
  const QPointF origin = Origin(scale);
  const auto map = [&](design::Point q) { return QPointF(origin.x() + q.x * scale, origin.y() - q.y * scale); };
  const QRectF inside = QRectF(rect()).adjusted(2, 2, -2, -2);

  // The lines first: a text must keep clear of every one of them.
  struct Shifted {
    QPointF a, b, shift;
  };
  std::vector<Shifted> shifted;
  for (const auto& m : outline_.marks) {
    PlacedMark pm;
    const QPointF a = map(m.from), b = map(m.to);
    // The offset goes to the left of the direction from -> to, in model units (y up).
    const double dx = m.to.x - m.from.x, dy = m.to.y - m.from.y, len = std::hypot(dx, dy);
    const QPointF shift = len > 0 ? QPointF(-dy / len * m.offset * scale, -dx / len * m.offset * scale) : QPointF();
    if (QLineF(a, b).length() > 0) {
      pm.line = QLineF(a + shift, b + shift);
      if (m.offset != 0) {
        pm.extensionA = QLineF(a, a + shift * 1.1);
        pm.extensionB = QLineF(b, b + shift * 1.1);
      }
    }
    placed.push_back(pm);
    shifted.push_back({a, b, shift});
  }
  const auto clear = [&](const QRectF& box, size_t self) {
    if (!inside.contains(box)) return false;
    for (size_t k = 0; k < placed.size(); ++k)
      if (Crosses(placed[k].line, box) || (k != self && placed[k].text.intersects(box))) return false;
    return true;
  };
  const auto keepInside = [&](QRectF box) {
    box.moveLeft(std::clamp(box.left(), inside.left(), std::max(inside.left(), inside.right() - box.width())));
    box.moveTop(std::clamp(box.top(), inside.top(), std::max(inside.top(), inside.bottom() - box.height())));
    return box;
  };

  for (size_t i = 0; i < placed.size(); ++i) {
    PlacedMark& pm = placed[i];
    if (pm.line.isNull()) continue;
    const auto& m = outline_.marks[i];
    const QString text = QString::fromStdString(m.text);
    const QSizeF size(metrics.horizontalAdvance(text) + 4, metrics.height());
    const QPointF a = pm.line.p1(), b = pm.line.p2(), mid = (a + b) / 2;
    std::vector<QRectF> candidates;  // in order of preference
    if (std::abs(b.x() - a.x()) >= std::abs(b.y() - a.y())) {
      pm.upright = true;
      if (m.offset == 0) {
        // A short width inside the shape (a web): beside it, right or left, where nothing is.
        candidates.push_back(QRectF(QPointF(std::max(a.x(), b.x()) + 6, mid.y() - size.height() / 2), size));
        candidates.push_back(QRectF(QPointF(std::min(a.x(), b.x()) - 6 - size.width(), mid.y() - size.height() / 2), size));
      } else {
        // Above or below the line, on the side away from the shape first.
        const double away = shifted[i].shift.y() > 0 ? mid.y() + 3 : mid.y() - 3 - size.height();
        const double toward = shifted[i].shift.y() > 0 ? mid.y() - 3 - size.height() : mid.y() + 3;
        candidates.push_back(QRectF(QPointF(mid.x() - size.width() / 2, away), size));
        candidates.push_back(QRectF(QPointF(mid.x() - size.width() / 2, toward), size));
      }
    } else {
      // Along a vertical line the text reads upwards, as on a drawing: outside the line
      // first, else between the line and the shape, never across the line.
      pm.upright = false;
      const QSizeF turned(size.height(), size.width());
      const double side = shifted[i].shift.x() >= 0 ? 1 : -1;
      for (double s : {side, -side})
        candidates.push_back(QRectF(QPointF(mid.x() + s * 2 + (s > 0 ? 0 : -turned.width()), mid.y() - turned.height() / 2),
                                    turned));
    }
    for (QRectF& c : candidates) c = keepInside(c);
    pm.text = candidates.front();
    for (const QRectF& c : candidates)
      if (clear(c, i)) {
        pm.text = c;
        break;
      }
  }
  return placed;
}

void SectionPicture::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  if (outline_.IsEmpty() || !(outline_.width > 0) || !(outline_.height > 0)) {
    p.setPen(Qt::gray);
    p.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, placeholderText_);
    return;
  }
  p.setFont(MarkFont());
  const double scale = Scale();
  const QPointF origin = Origin(scale);
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
  const std::vector<PlacedMark> marks = PlaceMarks();
  for (size_t i = 0; i < marks.size(); ++i) {
    const PlacedMark& pm = marks[i];
    if (pm.line.isNull()) continue;
    p.setPen(QPen(ink, 0.8, Qt::DashLine));
    if (!pm.extensionA.isNull()) p.drawLine(pm.extensionA);
    if (!pm.extensionB.isNull()) p.drawLine(pm.extensionB);
    p.setPen(QPen(ink, 1.0));
    p.setBrush(ink);
    p.drawLine(pm.line);
    Arrow(p, pm.line.p1(), pm.line.p2());
    Arrow(p, pm.line.p2(), pm.line.p1());
    const QString text = QString::fromStdString(outline_.marks[i].text);
    p.setPen(ink);
    if (pm.upright) {
      p.drawText(pm.text, Qt::AlignCenter, text);
    } else {
      p.save();
      p.translate(pm.text.center());
      p.rotate(-90);
      p.drawText(QRectF(-pm.text.height() / 2, -pm.text.width() / 2, pm.text.height(), pm.text.width()),
                 Qt::AlignCenter, text);
      p.restore();
    }
  }
}
