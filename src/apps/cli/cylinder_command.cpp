#include <ostream>
#include <sstream>

#include "apps/cli/cli.h"
#include "dialogs/geometry/cylindrical_frame.h"
#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/parse_list.h"

namespace cli {
namespace {

const char* kCylinderUsage =
    "usage: norvane-cli cylinder [--radial LIST] [--angles LIST] [--axial LIST] [--insert X,Y,Z]\n"
    "                            [--axis X|Y|Z] [--rotate DEGREES] [--supports none|pinned|fixed]\n"
    "                            [--no-members] [--first-node ID] [--first-member ID] [--output FILE]\n";

std::string Coordinate(double v) { return tools::Format("%.12g", v); }

std::string Count(size_t n, const char* what) { return std::to_string(n) + " " + what + (n == 1 ? "" : "s"); }

// One record a line, fields separated by blanks, so that scripts read it with a split.
std::string Listing(const geometry::CylindricalFrame& f) {
  std::ostringstream s;
  s << "# cylindrical frame, " << (f.closed ? "closed" : "open") << ": " << Count(f.levels, "level") << ", "
    << Count(f.rings, "ring") << ", " << Count(f.angles, "angle") << "; " << Count(f.nodes.size(), "node") << ", "
    << Count(f.members.size(), "member") << ", " << Count(f.supports.size(), "support") << "\n";
  for (const fmNd& n : f.nodes)
    s << "node " << n.id << " " << Coordinate(n.x) << " " << Coordinate(n.y) << " " << Coordinate(n.z) << "\n";
  for (const auto& m : f.members) s << "member " << m.id << " " << m.nodeI << " " << m.nodeJ << "\n";
  for (const auto& sp : f.supports) s << "support " << sp.node << " " << geometry::SupportKindName(sp.kind) << "\n";
  return s.str();
}

}  // namespace

int CylinderCommand(const Args& args, std::ostream& out, std::ostream& err) {
  geometry::CylindricalFrameParameters p;
  uint32_t firstNode = 1, firstMember = 1;
  std::string output;
  auto bad = [&err](const std::string& what) {
    err << "norvane-cli: " << what << "\n" << kCylinderUsage;
    return kUsage;
  };
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--help" || a == "-h") {
      out << kCylinderUsage;
      return kOk;
    }
    if (a == "--no-members") {
      p.generateMembers = false;
      continue;
    }
    if (i + 1 >= args.size()) return bad(a + " needs a value");
    const std::string& v = args[++i];
    if (a == "--radial") {
      p.radialList = v;
    } else if (a == "--angles") {
      p.angleList = v;
    } else if (a == "--axial") {
      p.axialList = v;
    } else if (a == "--insert") {
      const auto xyz = tools::ParseList(v);
      if (!xyz.ok() || xyz.values.size() != 3) return bad("--insert needs three numbers X,Y,Z, not \"" + v + "\"");
      p.insertX = xyz.values[0], p.insertY = xyz.values[1], p.insertZ = xyz.values[2];
    } else if (a == "--axis") {
      const std::string axes[] = {"X", "Y", "Z"};
      p.rotationAxis = -1;
      for (int k = 0; k < 3; ++k)
        if (tools::EqualsNoCase(v, axes[k])) p.rotationAxis = k;
      if (p.rotationAxis < 0) return bad("--axis must be X, Y or Z, not \"" + v + "\"");
    } else if (a == "--rotate") {
      const auto angle = tools::ParseDouble(v);
      if (!angle) return bad("--rotate needs an angle in degrees, not \"" + v + "\"");
      p.rotationAngle = *angle;
    } else if (a == "--supports") {
      p.supports = -1;
      for (int k = 0; k < 3; ++k)
        if (tools::EqualsNoCase(v, geometry::SupportKindName(static_cast<geometry::SupportKind>(k)))) p.supports = k;
      if (p.supports < 0) return bad("--supports must be none, pinned or fixed, not \"" + v + "\"");
    } else if (a == "--first-node" || a == "--first-member") {
      const auto id = tools::ParseUInt32(v);
      if (!id || *id == 0 || *id > kMaxId)
        return bad(a + " needs a whole number from 1 to 2147483647, not \"" + v + "\"");
      (a == "--first-node" ? firstNode : firstMember) = *id;
    } else if (a == "--output") {
      output = v;
    } else {
      return bad("unknown option " + a);
    }
  }

  const geometry::CylindricalFrameResult r = geometry::GenerateCylindricalFrame(p, firstNode, firstMember);
  if (!r.ok()) {
    err << "norvane-cli: " << r.error << "\n";
    return kRefused;
  }
  const std::string listing = Listing(r.frame);
  if (output.empty()) {
    out << listing;
    return kOk;
  }
  tools::WriteFileAtomically(output, listing);
  out << "Wrote " << output << " (" << Count(r.frame.nodes.size(), "node") << ", "
      << Count(r.frame.members.size(), "member") << ", " << Count(r.frame.supports.size(), "support") << ")\n";
  return kOk;
}

}  // namespace cli
