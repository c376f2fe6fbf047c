// The list grammar and the cylinder checks: three lists separated by newlines; what the
// checks accept generates nodes whose coordinates are all finite numbers.
#include <cmath>
#include <cstdint>
#include <string>

#include "dialogs/geometry/cylindrical_frame.h"
#include "fuzz/fuzz_check.h"
#include "tools/parse_list.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text = TextOf(data, size);
  std::string_view lists[3];
  size_t start = 0;
  for (int k = 0; k < 3; ++k) {
    const size_t end = k < 2 ? text.find('\n', start) : std::string_view::npos;
    lists[k] = text.substr(std::min(start, text.size()), end == std::string_view::npos ? end : end - start);
    start = end == std::string_view::npos ? text.size() : end + 1;
  }
  for (const std::string_view list : lists) {
    const tools::ListParseResult r = tools::ParseList(list);
    Require(r.ok() || r.values.empty(), "a refused list gives no values");
    for (double v : r.values) Require(std::isfinite(v), "list values are finite");
  }
  const geometry::CylinderCheck check = geometry::CheckCylindricalFrameLists(lists[0], lists[1], lists[2]);
  if (!check.ok()) return 0;
  // Large frames are counted by the checks; generating them only costs time here.
  if (check.radial.size() * check.angles.size() * (check.axial.size() + 1) > 20000) return 0;
  geometry::CylindricalFrameParameters p;
  p.radialList = std::string(lists[0]);
  p.angleList = std::string(lists[1]);
  p.axialList = std::string(lists[2]);
  const geometry::CylindricalFrameResult r = geometry::GenerateCylindricalFrame(p, 1, 1);
  if (!r.ok()) return 0;
  for (const fmNd& n : r.frame.nodes)
    Require(std::isfinite(n.x) && std::isfinite(n.y) && std::isfinite(n.z), "generated coordinates are finite");
  return 0;
}
