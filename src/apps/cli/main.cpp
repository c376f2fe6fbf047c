#include <csignal>
#include <exception>
#include <new>
#include <iostream>

#include "apps/cli/cli.h"

namespace {

// Add a family's command here.
const cli::Command kCommands[] = {
    {"units",
     "units list                      every unit label with its index and factor\n"
     "  units convert VALUE FROM TO     convert VALUE between two units of one kind",
     cli::UnitsCommand},
    {"combos",
     "combos codes                    the design codes: index, name, number of combinations\n"
     "  combos list CODE                the code's combinations as the check list shows them\n"
     "  combos generate MODEL CODE [--rows all|1,3,5-8] [--pdelta] [-o OUT]\n"
     "                                  add the code's standard combinations to the model",
     cli::CombosCommand},
    {"grid",
     "grid export MODEL TABLE OUT [--append]\n"
     "                                  save a table of the model (nodes, members, shells, bricks)\n"
     "                                  as .htm, .txt, .xls or .xlsx;\n"
     "                                  --append adds to an existing .htm or .txt file",
     cli::GridCommand},
    {"kfactor",
     "kfactor GA GB                   effective length factor K of a braced and an unbraced column",
     cli::KFactorCommand},
    {"cylinder",
     "cylinder [--radial LIST] [--angles LIST] [--axial LIST] [--insert X,Y,Z] [--axis X|Y|Z]\n"
     "           [--rotate DEG] [--supports none|pinned|fixed] [--no-members] [--first-node ID]\n"
     "           [--first-member ID] [--output FILE]\n"
     "                                  nodes, members and supports of a cylindrical frame",
     cli::CylinderCommand},
    {"section",
     "section rect|round|wideflange|tee D1 [D2 D3 D4]\n"
     "                                  properties of a regular section",
     cli::SectionCommand},
    {"shapes",
     "shapes list [TYPE]              labels of the steel shape library\n"
     "  shapes show LABEL               one shape's table properties\n"
     "  shapes import FILE | export FILE\n"
     "                                  replace the library from, or write it to, a csv file\n"
     "  shapes bundle DATA_DIR          build the bundled library files from their source",
     cli::ShapesCommand},
    {"report",
     "report MODEL KIND [--case N|--mode N] [--query ID] [--selected] [-o OUT]\n"
     "                                  a results report of the model (KIND as the results dialog's,\n"
     "                                  e.g. 0 displacements, 1 support reactions, 55 displacement\n"
     "                                  envelope); N is the 1-based case or mode, the first when\n"
     "                                  omitted; OUT .htm, .txt, .xls or .xlsx, else aligned text",
     cli::ReportCommand},
};

void PrintUsage(std::ostream& out) {
  out << "usage: norvane-cli COMMAND [ARGS]\n\ncommands:\n";
  for (const auto& c : kCommands) out << "  " << c.usage << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  // Past a file-size limit a write then fails with EFBIG and is reported, instead of the
  // signal ending the program with a temporary file left beside the target.
  std::signal(SIGXFSZ, SIG_IGN);
  std::ios::sync_with_stdio(false);
  if (argc < 2 || std::string(argv[1]) == "help" || std::string(argv[1]) == "--help" ||
      std::string(argv[1]) == "-h") {
    PrintUsage(argc < 2 ? std::cerr : std::cout);
    return argc < 2 ? cli::kUsage : cli::kOk;
  }
  const std::string name = argv[1];
  const cli::Args args(argv + 2, argv + argc);
  for (const auto& c : kCommands) {
    if (name != c.name) continue;
    try {
      return c.run(args, std::cout, std::cerr);
    } catch (const std::bad_alloc&) {
      std::cerr << "norvane-cli: Not enough memory to run \"" << name << "\"\n";
      return cli::kRefused;
    } catch (const std::exception& e) {
      std::cerr << "norvane-cli: " << e.what() << "\n";
      return cli::kRefused;
    }
  }
  std::cerr << "norvane-cli: unknown command \"" << name << "\"\n";
  PrintUsage(std::cerr);
  return cli::kUsage;
}
