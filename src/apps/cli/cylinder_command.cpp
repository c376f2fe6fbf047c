#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <sstream>

#include "apps/cli/cli.h"
#include "dialogs/geometry/cylindrical_frame.h"
#include "model/document.h"
#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/parse_list.h"

namespace cli {
namespace {

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

// The texts of the options that need reading, each checked when given.
struct CylinderArgs {
  geometry::CylindricalFrameParameters p;
  bool noMembers = false;
  std::string insert, axis, rotate, supports, firstNode, firstMember, output, into, modelOut;
  const CLI::App* command = nullptr;
  bool Given(const std::string& option) const { return command->count(option) > 0; }
};

int Cylinder(CylinderArgs a, std::ostream& out, std::ostream& err) {
  geometry::CylindricalFrameParameters& p = a.p;
  p.generateMembers = !a.noMembers;
  uint32_t firstNode = 1, firstMember = 1;
  auto bad = [&err, &a](const std::string& what) {
    err << "norvane-cli: " << what << "\n" << Help(*a.command);
    return kUsage;
  };
  if (a.Given("--insert")) {
    const auto xyz = tools::ParseList(a.insert);
    if (!xyz.ok() || xyz.values.size() != 3)
      return bad("--insert needs three numbers X,Y,Z, not \"" + a.insert + "\"");
    p.insertX = xyz.values[0], p.insertY = xyz.values[1], p.insertZ = xyz.values[2];
  }
  if (a.Given("--axis")) {
    const std::string axes[] = {"X", "Y", "Z"};
    p.rotationAxis = -1;
    for (int k = 0; k < 3; ++k)
      if (tools::EqualsNoCase(a.axis, axes[k])) p.rotationAxis = k;
    if (p.rotationAxis < 0) return bad("--axis must be X, Y or Z, not \"" + a.axis + "\"");
  }
  if (a.Given("--rotate")) {
    const auto angle = tools::ParseDouble(a.rotate);
    if (!angle) return bad("--rotate needs an angle in degrees, not \"" + a.rotate + "\"");
    p.rotationAngle = *angle;
  }
  if (a.Given("--supports")) {
    p.supports = -1;
    for (int k = 0; k < 3; ++k)
      if (tools::EqualsNoCase(a.supports, geometry::SupportKindName(static_cast<geometry::SupportKind>(k))))
        p.supports = k;
    if (p.supports < 0) return bad("--supports must be none, pinned or fixed, not \"" + a.supports + "\"");
  }
  for (const auto& [option, text, id] : {std::tuple{"--first-node", &a.firstNode, &firstNode},
                                         std::tuple{"--first-member", &a.firstMember, &firstMember}}) {
    if (!a.Given(option)) continue;
    const auto value = tools::ParseUInt32(*text);
    if (!value || *value == 0 || *value > kMaxId)
      return bad(std::string(option) + " needs a whole number from 1 to 2147483647, not \"" + *text + "\"");
    *id = *value;
  }
  const std::string& output = a.output;

  if (a.Given("--into")) {
    // Into a model: numbered after its nodes and members, with its first material and section.
    if (a.Given("--first-node") || a.Given("--first-member") || a.Given("--output"))
      return bad("--into numbers the frame after the model's own ids and writes a model: no --first-node, "
                 "--first-member or --output");
    if (a.modelOut.empty()) return bad("--into needs -o OUT, the model to write");
    model::ModelDocument doc = model::LoadModelDocument(a.into);
    const geometry::CylindricalFrameResult r = geometry::AddCylindricalFrameToDocument(doc, p);
    if (!r.ok()) {
      err << "norvane-cli: " << r.error << "\n";
      return kRefused;
    }
    model::SaveModelDocument(doc, a.modelOut);
    const auto& f = r.frame;
    out << "Added " << Count(f.nodes.size(), "node");
    if (!f.nodes.empty()) out << " (" << f.nodes.front().id << " to " << f.nodes.back().id << ")";
    out << ", " << Count(f.members.size(), "member");
    if (!f.members.empty()) out << " (" << f.members.front().id << " to " << f.members.back().id << ")";
    out << " and " << Count(f.supports.size(), "support") << " to " << a.modelOut << "\n";
    return kOk;
  }
  if (!a.modelOut.empty()) return bad("-o writes a model: give the model with --into");

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

}  // namespace

void AddCylinderCommand(Program& program) {
  auto a = std::make_shared<CylinderArgs>();
  CLI::App* c = program.Add(program.root(), "cylinder", "nodes, members and supports of a cylindrical frame",
                            [a](Io io) { return Cylinder(*a, io.out, io.err); });
  a->command = c;
  c->add_option("--radial", a->p.radialList, "radial distances")->type_name("LIST")->capture_default_str();
  c->add_option("--angles", a->p.angleList, "angle increments in degrees")->type_name("LIST")->capture_default_str();
  c->add_option("--axial", a->p.axialList, "distances along the axis between levels")->type_name("LIST");
  c->add_option("--insert", a->insert, "insertion point")->type_name("X,Y,Z");
  c->add_option("--axis", a->axis, "axis of the cylinder")->type_name("X|Y|Z");
  c->add_option("--rotate", a->rotate, "rotation about the axis")->type_name("DEGREES");
  c->add_option("--supports", a->supports, "supports at the base level")->type_name("none|pinned|fixed");
  c->add_flag("--no-members", a->noMembers, "nodes (and supports) only");
  c->add_option("--first-node", a->firstNode, "id of the first node (1 by default)")->type_name("ID");
  c->add_option("--first-member", a->firstMember, "id of the first member (1 by default)")->type_name("ID");
  c->add_option("--output", a->output, "write the listing to FILE instead of stdout")->type_name("FILE");
  c->add_option("--into", a->into,
                "add the frame to this model (its members take the model's first material and section)")
      ->type_name("MODEL");
  c->add_option("-o", a->modelOut, "with --into, write the model with the frame to OUT")->type_name("OUT");
}

}  // namespace cli
