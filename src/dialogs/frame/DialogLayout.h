#pragma once
#include <QSize>
#include <initializer_list>

class CDialog;
class QDialog;

// Layout a dialog asks for beyond its template's rows.
namespace frame {

// The bottom buttons from the left instead of the right: all as wide as the widest, a tenth
// of that width apart, the row raised a fifth of their height from the bottom edge.
void ButtonsFromTheLeft(CDialog& dlg, std::initializer_list<int> buttonIds);

// Gives the dialog its laid-out size times these factors, centred over its parent's window
// (or the screen); returns that size, which the dialog's sizeHint then keeps.
QSize ResizeCentred(QDialog& dlg, double widthFactor, double heightFactor);

// Half a scroll arrow's height between the body and the bottom buttons; lays the dialog out
// again at once.
void SpaceButtonsFromBody(QDialog& dlg);

}  // namespace frame
