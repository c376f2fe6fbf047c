#include "dialogs/frame/CPreferencesDlg.h"

#include "dialogs/frame/Form.h"
#include "resources/frame_ids.h"

// General and animation on the left, spreadsheet and solver on the right, graphics across
// the bottom. Number edits are narrow; the folder edit takes the spare width.
const frame::Form<CPreferencesDlg>& CPreferencesDlg::Description() {
  using F = frame::Field<CPreferencesDlg>;
  using P = CPreferencesDlg;
  static const frame::Form<P> form(
      {res::kIddPreferences, "Preferences", 1349, 0, 0, res::kNarrow},
      {
          F::Group("General").At(0, 0),
          F::Folder("Data Folder:", &P::m_strDataFolder).Id(1339).LabelId(1163, 1350).LabelAbove(),
          F::UInt("Automatic file backup period:", &P::m_nBackupPeriod, 0, 200)
              .Id(3380).LabelId(1164, 1351).Suffix("minutes", 1165, 1352),
          F::Check("Lock model after analysis is performed successfully.", &P::m_bLockAfterAnalysis).Id(1010, 1356),
          F::Check("Use the external HTML viewer (e.g. Internet Explorer)", &P::m_bExternalHtmlViewer).Id(1011, 1357),
          F::Check("Use rubber-banding while drawing elements", &P::m_bRubberBanding).Id(1013, 1358),
          F::Check("Use traditional selection rectangle\n(may not work on some newer systems)",
                   &P::m_bTraditionalSelection).Id(1015),

          F::Group("Response Animation").Id(1166, 1353).At(1, 0),
          F::UInt("Number of frames:", &P::m_nNumberOfFrames, 3, 100).Id(3381).LabelId(1167, 1354),
          F::Real("Duration per frame:", &P::m_dFrameDuration, 0.01, 100.0)
              .Id(3382).LabelId(1168, 1355).Suffix("second(s)", 1172, 1363),

          F::Group("Spreadsheet Settings").Id(1169, 1359).At(0, 1),
          F::Check("Show row headers in spreadsheets", &P::m_bShowRowHeaders).Id(1012, 1360),
          F::UInt("Row height:", &P::m_nRowHeight).Id(3383).LabelId(1170, 1361),
          F::UInt("Font size:", &P::m_nSpreadFontSize).Id(3384).LabelId(1171, 1362),
          F::Check("Append to existing file when saving spreadsheet to htm/txt format", &P::m_bAppendSpreadsheetSave)
              .Id(1014, 1516),

          F::Group("Solver").At(1, 1),
          F::UInt("Maximum memory for Out-of-core solver (MB):", &P::m_nOutOfCoreMemory, 20, 100000)
              .Id(3385).LabelId(1173, 1585),
          F::UInt("Number of CPUs for sparse solver:", &P::m_nSolverCpus, 1, 10000).Id(3386),

          F::Group("Graphics").At(2, 0, 1, 2),
          F::Font("Font name:", &P::m_strGraphicsFontName).Id(1338),
          F::UInt("Font size:", &P::m_nGraphicsFontSize, 2, 100).Id(3387).LabelId(0, 1362).At(0, 2)
              .LabelFlags(res::kAlignRight),
          F::Check("Save drawing grid settings", &P::m_bSaveDrawingGrid).Id(1016).At(1, 0).Span(2),
          F::Check("Fill moment and shear diagrams", &P::m_bFillDiagrams).Id(1017).At(1, 2),
          F::Real("Fill transparency value [0 - 1.0]:", &P::m_dFillTransparency, 0.0, 1.0).Id(3388).At(2, 0),
      });
  return form;
}

CPreferencesDlg::CPreferencesDlg(QWidget* pParent) : CDialog(Description(), pParent) {}
