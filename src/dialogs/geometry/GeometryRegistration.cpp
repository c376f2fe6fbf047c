#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/geometry/CGenerateCylindricalFrameDlg.h"

void RegisterGeometryDialogs() {
  RegisterDialog<CGenerateCylindricalFrameDlg>("CGenerateCylindricalFrameDlg", "Structured generators and transforms");
}
