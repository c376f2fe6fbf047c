#include "tools/format_number.h"

#include <algorithm>

#include "tools/format.h"

namespace tools {

std::string format_number(double value, int digits) {
  return Format("%.*g", std::clamp(digits, 1, 17), value);
}

}  // namespace tools
