#pragma once
#include <vector>

class QWidget;

namespace frame {

// Keeps a report list's columns at these shares of its width whenever it is resized
// (0.3 is 30 %); columns past the shares keep their width.
void KeepColumnShares(QWidget* reportList, std::vector<double> shares);

}  // namespace frame
