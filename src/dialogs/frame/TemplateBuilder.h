#pragma once
#include <unordered_map>

#include "resources/resources.h"

class QWidget;

// Turns a dialog template into widgets laid out in grids. Each widget carries its control
// id as the property "ctlId" and the object name "ctl_<id>".
namespace frame {

// Rows with these numbers go to the bar of buttons along the bottom (in column order) or to
// the column of buttons on the right.
inline constexpr int kButtonBar = -1;
inline constexpr int kSideBar = -2;

std::unordered_map<int, QWidget*> BuildFromTemplate(QWidget* dialog, const res::DialogTemplate& tmpl);

}  // namespace frame
