#pragma once
#include <QString>

class QWidget;

// The text of a control, whatever its kind: a label's or button's text, a group's title, an
// edit's contents, a drop-down's chosen entry (a font chooser's family), a report list's
// column headings separated by '\t'. Captions and data exchange both go through here.
namespace frame {

QString ControlText(const QWidget* w);
void SetControlText(QWidget* w, const QString& text);

}  // namespace frame
