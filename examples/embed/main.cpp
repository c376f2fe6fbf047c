// A host of its own: it keeps a small model (units and nodes), lets the user edit the units
// and the node table with the library's dialogs and takes the results back after OK.
//
//   norvane-embed               opens both dialogs, one after the other
//   norvane-embed --self-test   accepts each dialog from a zero-delay timer (choosing the
//                               metric units first) and checks what came back; exit 0 when
//                               everything is as expected
#include <QApplication>
#include <QTimer>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "dialogs/Library.h"
#include "dialogs/model/CNodeDataDlg.h"
#include "dialogs/units/CUnitsDlg.h"
#include "model/fm_node.h"
#include "resources/units_ids.h"
#include "tools/fm_unit.h"

namespace {

struct MyModel {
  fmUnit units;  // English: lengths in ft
  std::vector<fmNd> nodes = {{1, 0, 0.0, 0.0, 0.0}, {2, 0, 10.0, 0.0, 0.0}, {3, 0, 10.0, 25.0, 0.0}};
};

bool selfTest = false;
int failures = 0;

void Check(bool ok, const std::string& what) {
  std::printf("%s: %s\n", ok ? "ok" : "FAILED", what.c_str());
  if (!ok) ++failures;
}

// In the self-test, `drive` runs once the dialog's modal loop has started.
template <class Dialog, class Drive>
int Run(Dialog& dlg, Drive drive) {
  if (selfTest)
    QTimer::singleShot(0, &dlg, [&dlg, drive] {
      drive(dlg);
      if (dlg.ModalResult() == 0) {  // OK refused: say so rather than wait for a user
        Check(false, "the dialog closed on OK");
        dlg.EndDialog(IDCANCEL);
      }
    });
  return dlg.DoModal();
}

void EditUnits(QWidget* mainWindow, MyModel& model) {
  CUnitsDlg dlg(mainWindow);
  dlg.m_Units = model.units;
  const int result = Run(dlg, [](CUnitsDlg& d) {
    d.PressButton(res::kCtlUnitsDefaultMetric);
    d.PressButton(res::kCtlUnitsCheckAll);
    d.PressButton(IDOK);
  });
  if (result != IDOK) return;
  double factors[fmUnit::QuantityCount];
  GetConversionFactors(factors, model.units, dlg.m_Units);
  if (dlg.m_Units.convert[fmUnit::Length])
    for (fmNd& n : model.nodes) n.x *= factors[fmUnit::Length], n.y *= factors[fmUnit::Length], n.z *= factors[fmUnit::Length];
  model.units = dlg.m_Units;
}

void EditNodes(QWidget* mainWindow, MyModel& model) {
  CNodeDataDlg dlg(mainWindow);
  dlg.m_pUnits = &model.units;
  dlg.m_pNodes = &model.nodes;
  Run(dlg, [](CNodeDataDlg& d) { d.PressButton(IDOK); });
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  selfTest = argc > 1 && std::string(argv[1]) == "--self-test";
  NorvaneDlgsLibrary library;  // once, at start-up
  MyModel model;

  EditUnits(nullptr, model);
  EditNodes(nullptr, model);
  if (!selfTest) return 0;

  // 1 ft is 0.3048 m exactly, so 10 ft and 25 ft are 3.048 m and 7.62 m.
  Check(model.units.Label(fmUnit::Length) == "m", "lengths are in m (the units dialog gave " + model.units.Label(fmUnit::Length) + ")");
  Check(model.nodes.size() == 3, "the node table kept its three nodes");
  if (model.nodes.size() == 3) {
    Check(std::abs(model.nodes[1].x - 3.048) < 1e-9 && std::abs(model.nodes[2].y - 7.62) < 1e-9,
          "node coordinates converted to m: node 2 x " + std::to_string(model.nodes[1].x) + ", node 3 y " +
              std::to_string(model.nodes[2].y));
    Check(model.nodes[2].id == 3 && model.nodes[0].x == 0, "node ids and untouched coordinates kept");
  }
  return failures == 0 ? 0 : 1;
}
