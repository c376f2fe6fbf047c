#include "dialogs/model/CBrickDataDlg.h"

#include "resources/model_ids.h"

CBrickDataDlg::CBrickDataDlg(QWidget* pParent) : CElementDataDlg(res::kIddBrickData, elementgrid::kBricks, pParent) {}
