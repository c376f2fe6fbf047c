#include "dialogs/frame/DialogLayout.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "dialogs/frame/CDialog.h"

namespace frame {
namespace {

// The box layout that holds a widget, searched through nested layouts.
QBoxLayout* BoxLayoutOf(QLayout* layout, QWidget* widget) {
  if (!layout) return nullptr;
  if (layout->indexOf(widget) >= 0) return qobject_cast<QBoxLayout*>(layout);
  for (int i = 0; i < layout->count(); ++i)
    if (QBoxLayout* found = BoxLayoutOf(layout->itemAt(i)->layout(), widget)) return found;
  return nullptr;
}

}  // namespace

void ButtonsFromTheLeft(CDialog& dlg, std::initializer_list<int> buttonIds) {
  std::vector<QWidget*> buttons;
  QSize size;
  for (int id : buttonIds) {
    QWidget* w = dlg.GetDlgItem(id);
    if (!w) return;
    buttons.push_back(w);
    size = size.expandedTo(w->sizeHint());
  }
  QBoxLayout* row = buttons.empty() ? nullptr : BoxLayoutOf(dlg.layout(), buttons.front());
  if (!row) return;
  for (QWidget* w : buttons) w->setFixedWidth(size.width());
  for (int i = row->count() - 1; i >= 0; --i)
    if (row->itemAt(i)->spacerItem()) delete row->takeAt(i);
  row->setSpacing(static_cast<int>(size.width() * 0.1 + 0.5));
  row->addStretch(1);
  row->setContentsMargins(0, 0, 0, static_cast<int>(size.height() * 0.2 + 0.5));
}

QSize ResizeCentred(QDialog& dlg, double widthFactor, double heightFactor) {
  const QSize laidOut = dlg.sizeHint().expandedTo(dlg.minimumSize());
  const QSize size(static_cast<int>(laidOut.width() * widthFactor), static_cast<int>(laidOut.height() * heightFactor));
  dlg.setMinimumSize(0, 0);
  dlg.resize(size);
  const QWidget* over = dlg.parentWidget() ? dlg.parentWidget()->window() : nullptr;
  const QRect area = over ? over->geometry() : QGuiApplication::primaryScreen()->availableGeometry();
  dlg.move(area.center() - QPoint(size.width() / 2, size.height() / 2));
  return size;
}

void SpaceButtonsFromBody(QDialog& dlg) {
  QLayout* outer = dlg.layout();
  if (!outer) return;
  outer->setSpacing(dlg.style()->pixelMetric(QStyle::PM_ScrollBarExtent) / 2);
  outer->activate();
}

}  // namespace frame
