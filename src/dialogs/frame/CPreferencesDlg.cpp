#include "dialogs/frame/CPreferencesDlg.h"

#include "dialogs/frame/Form.h"
#include "resources/frame_ids.h"

using namespace res;

// General and animation on the left, spreadsheet and solver on the right, graphics across
// the bottom. Number edits are narrow; the folder edit takes the spare width.
const frame::Form<CPreferencesDlg>& CPreferencesDlg::Description() {
  using F = frame::Field<CPreferencesDlg>;
  using P = CPreferencesDlg;
  static const frame::Form<P> form(
      {kIddPreferences, "Preferences", kStrPrefCaption, 0, 0, kNarrow},
      {
          F::Group("General").At(0, 0),
          F::Folder("Data Folder:", &P::m_strDataFolder)
              .Id(kCtlPrefDataFolder).LabelId(kCtlPrefDataFolderLabel, kStrPrefDataFolder).LabelAbove(),
          F::UInt("Automatic file backup period:", &P::m_nBackupPeriod, 0, 200)
              .Id(kCtlPrefBackupPeriod).LabelId(kCtlPrefBackupPeriodLabel, kStrPrefBackupPeriod)
              .Suffix("minutes", kCtlPrefMinutes, kStrPrefMinutes),
          F::Check("Lock model after analysis is performed successfully.", &P::m_bLockAfterAnalysis)
              .Id(kCtlPrefLockAfterAnalysis, kStrPrefLockAfterAnalysis),
          F::Check("Use the external HTML viewer (e.g. Internet Explorer)", &P::m_bExternalHtmlViewer)
              .Id(kCtlPrefExternalHtmlViewer, kStrPrefExternalHtmlViewer),
          F::Check("Use rubber-banding while drawing elements", &P::m_bRubberBanding)
              .Id(kCtlPrefRubberBanding, kStrPrefRubberBanding),
          F::Check("Use traditional selection rectangle\n(may not work on some newer systems)",
                   &P::m_bTraditionalSelection).Id(kCtlPrefTraditionalSelection),

          F::Group("Response Animation").Id(kCtlPrefAnimationGroup, kStrPrefAnimation).At(1, 0),
          F::UInt("Number of frames:", &P::m_nNumberOfFrames, 3, 100)
              .Id(kCtlPrefNumberOfFrames).LabelId(kCtlPrefNumberOfFramesLabel, kStrPrefNumberOfFrames),
          F::Real("Duration per frame:", &P::m_dFrameDuration, 0.01, 100.0)
              .Id(kCtlPrefFrameDuration).LabelId(kCtlPrefFrameDurationLabel, kStrPrefFrameDuration)
              .Suffix("second(s)", kCtlPrefSeconds, kStrPrefSeconds),

          F::Group("Spreadsheet Settings").Id(kCtlPrefSpreadsheetGroup, kStrPrefSpreadsheet).At(0, 1),
          F::Check("Show row headers in spreadsheets", &P::m_bShowRowHeaders)
              .Id(kCtlPrefShowRowHeaders, kStrPrefShowRowHeaders),
          F::UInt("Row height:", &P::m_nRowHeight).Id(kCtlPrefRowHeight).LabelId(kCtlPrefRowHeightLabel, kStrPrefRowHeight),
          F::UInt("Font size:", &P::m_nSpreadFontSize)
              .Id(kCtlPrefSpreadFontSize).LabelId(kCtlPrefSpreadFontSizeLabel, kStrPrefFontSize),
          F::Check("Append to existing file when saving spreadsheet to htm/txt format", &P::m_bAppendSpreadsheetSave)
              .Id(kCtlPrefAppendSave, kStrPrefAppendSave),

          F::Group("Solver").At(1, 1),
          F::UInt("Maximum memory for Out-of-core solver (MB):", &P::m_nOutOfCoreMemory, 20, 100000)
              .Id(kCtlPrefOutOfCoreMemory).LabelId(kCtlPrefOutOfCoreMemoryLabel, kStrPrefOutOfCoreMemory),
          F::UInt("Number of CPUs for sparse solver:", &P::m_nSolverCpus, 1, 10000).Id(kCtlPrefSolverCpus),

          F::Group("Graphics").At(2, 0, 1, 2),
          F::Font("Font name:", &P::m_strGraphicsFontName).Id(kCtlPrefGraphicsFontName),
          F::UInt("Font size:", &P::m_nGraphicsFontSize, 2, 100)
              .Id(kCtlPrefGraphicsFontSize).LabelId(0, kStrPrefFontSize).At(0, 2).LabelFlags(kAlignRight),
          F::Check("Save drawing grid settings", &P::m_bSaveDrawingGrid).Id(kCtlPrefSaveDrawingGrid).At(1, 0).Span(2),
          F::Check("Fill moment and shear diagrams", &P::m_bFillDiagrams).Id(kCtlPrefFillDiagrams).At(1, 2),
          F::Real("Fill transparency value [0 - 1.0]:", &P::m_dFillTransparency, 0.0, 1.0)
              .Id(kCtlPrefFillTransparency).At(2, 0),
      });
  return form;
}

CPreferencesDlg::CPreferencesDlg(QWidget* pParent) : CDialog(Description(), pParent) {}
