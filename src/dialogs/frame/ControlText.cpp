#include "dialogs/frame/ControlText.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFontComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

#include "dialogs/frame/FolderBrowseEdit.h"

namespace frame {

QString ControlText(const QWidget* w) {
  if (auto* label = qobject_cast<const QLabel*>(w)) return label->text();
  if (auto* button = qobject_cast<const QAbstractButton*>(w)) return button->text();
  if (auto* group = qobject_cast<const QGroupBox*>(w)) return group->title();
  if (auto* edit = qobject_cast<const QLineEdit*>(w)) return edit->text();
  if (auto* folder = dynamic_cast<const FolderBrowseEdit*>(w)) return folder->text();
  if (auto* font = qobject_cast<const QFontComboBox*>(w)) return font->currentFont().family();
  if (auto* combo = qobject_cast<const QComboBox*>(w)) return combo->currentText();
  if (auto* tree = qobject_cast<const QTreeWidget*>(w)) {
    QStringList headings;
    for (int col = 0; col < tree->columnCount(); ++col) headings << tree->headerItem()->text(col);
    return headings.join('\t');
  }
  return w->windowTitle();
}

void SetControlText(QWidget* w, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(w))
    label->setText(text);
  else if (auto* button = qobject_cast<QAbstractButton*>(w))
    button->setText(text);
  else if (auto* group = qobject_cast<QGroupBox*>(w))
    group->setTitle(text);
  else if (auto* edit = qobject_cast<QLineEdit*>(w))
    edit->setText(text);
  else if (auto* folder = dynamic_cast<FolderBrowseEdit*>(w))
    folder->setText(text);
  else if (auto* font = qobject_cast<QFontComboBox*>(w)) {
    // No name keeps the chooser's own choice rather than an arbitrary fallback face.
    if (!text.isEmpty()) font->setCurrentFont(QFont(text));
  } else if (auto* combo = qobject_cast<QComboBox*>(w))
    combo->setCurrentText(text);
  else if (auto* tree = qobject_cast<QTreeWidget*>(w))
    tree->setHeaderLabels(text.split('\t'));
  else
    w->setWindowTitle(text);
}

}  // namespace frame
