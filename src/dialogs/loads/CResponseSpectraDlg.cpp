#include "dialogs/loads/CResponseSpectraDlg.h"

#include <QHeaderView>
#include <QTreeWidget>

#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"
#include "dialogs/frame/Form.h"
#include "dialogs/frame/TemplateBuilder.h"
#include "dialogs/loads/CResponseSpectrumDataDlg.h"
#include "model/response_spectrum_manager.h"
#include "resources/ids.h"
#include "resources/spectra_ids.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/labels.h"

using namespace res;

namespace {

constexpr const char* kMsgModify =
    "Modifying an existing response spectrum may affect other Norvane models.\nAre you sure to proceed?";
constexpr const char* kMsgDelete =
    "Deleting an existing response spectrum may affect other Norvane models.\nAre you sure to proceed?";
constexpr const char* kMsgFirst = "You may not delete the first response spectrum.";
constexpr const char* kMsgSaveFailed = "Error saving response spectrum data to file";

const std::vector<std::string> kFileFilters = {"CSV File (*.csv)", "Text File (*.txt)", "All Files (*)"};

}  // namespace

// The spectra of the shared file with the file's path below them; the dialog changes the file
// itself, so its one button at the bottom is Close.
const frame::Form<CResponseSpectraDlg>& CResponseSpectraDlg::Description() {
  using F = frame::Field<CResponseSpectraDlg>;
  static const frame::Form<CResponseSpectraDlg> form(
      {.templateId = kIddResponseSpectra, .caption = "Response Spectra", .minWidth = 620, .minHeight = 380,
       .buttons = frame::FormFrame::Buttons::None},
      {
          F::Report("Spectrum Name\tNumber of Points").Id(kCtlSpectraList),
          F::Static("").Id(kCtlSpectraFile).Span(1),
          F::Button("Add from Code...").Id(kCtlSpectraGenerate),
          F::Button("Add from File...").Id(kCtlSpectraImport),
          F::Button("Modify...").Id(kCtlSpectraModify),
          F::Button("Delete").Id(kCtlSpectraDelete),
          F::Button("Export...").Id(kCtlSpectraExport),
          F::Button("Close").Id(IDCANCEL_, kStrClose).At(frame::kButtonBar, 0).Flags(kDefault),
      });
  return form;
}

CResponseSpectraDlg::CResponseSpectraDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnCommand(kCtlSpectraGenerate, [this] { OnGenerate(); });
  OnCommand(kCtlSpectraImport, [this] { OnImport(); });
  OnCommand(kCtlSpectraModify, [this] { OnModify(); });
  OnCommand(kCtlSpectraDelete, [this] { OnDelete(); });
  OnCommand(kCtlSpectraExport, [this] { OnExport(); });
  OnDoubleClick(kCtlSpectraList, [this] { OnModify(); });
}

BOOL CResponseSpectraDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
  if (auto* list = Item<QTreeWidget>(kCtlSpectraList)) {
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  }
  SetDlgItemText(kCtlSpectraFile, manager.FilePath());
  if (!manager.LoadFile()) {
    // The file stays as it is until the user has corrected it; the list shows what is held.
    readOnly_ = true;
    for (int id : {kCtlSpectraGenerate, kCtlSpectraImport, kCtlSpectraModify, kCtlSpectraDelete})
      EnableDlgItem(id, false);
    MessageBox(manager.LastError(), MessageIcon::Error);
  }
  Refresh(0);
  return 1;
}

void CResponseSpectraDlg::Refresh(int selectRow) {
  auto* list = Item<QTreeWidget>(kCtlSpectraList);
  if (!list) return;
  list->clear();
  for (const fmResponseSpectrum& s : CResponseSpectrumManager::Instance().GetSpectra())
    list->addTopLevelItem(new QTreeWidgetItem(
        QStringList{QString::fromStdString(s.name), QString::fromStdString(tools::FormatInt(static_cast<long long>(s.points.size())))}));
  if (selectRow >= 0 && selectRow < list->topLevelItemCount()) {
    list->setCurrentItem(list->topLevelItem(selectRow));
    list->scrollToItem(list->topLevelItem(selectRow));
  }
}

int CResponseSpectraDlg::CurrentRow() const {
  const auto* list = Item<QTreeWidget>(kCtlSpectraList);
  if (!list || !list->currentItem()) return -1;
  return list->indexOfTopLevelItem(list->currentItem());
}

bool CResponseSpectraDlg::Commit(std::vector<fmResponseSpectrum> spectra) {
  CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
  std::vector<fmResponseSpectrum> old = manager.GetSpectra();
  manager.SetSpectra(std::move(spectra));
  if (manager.SaveFile()) return true;
  manager.SetSpectra(std::move(old));
  MessageBox(kMsgSaveFailed, MessageIcon::Error);
  return false;
}

void CResponseSpectraDlg::Store(fmResponseSpectrum spectrum, int index) {
  std::vector<fmResponseSpectrum> spectra = CResponseSpectrumManager::Instance().GetSpectra();
  for (size_t i = 0; i < spectra.size(); ++i) {
    if (static_cast<int>(i) != index && tools::LabelsEqual(spectra[i].name, spectrum.name)) {
      MessageBox("A response spectrum named \"" + spectra[i].name + "\" already exists.");
      return;
    }
  }
  if (index < 0) {
    spectra.push_back(std::move(spectrum));
    index = static_cast<int>(spectra.size()) - 1;
  } else {
    spectra[static_cast<size_t>(index)] = std::move(spectrum);
  }
  if (Commit(std::move(spectra))) Refresh(index);
}

void CResponseSpectraDlg::OnGenerate() {
  if (readOnly_) return;
  CGenerateResponseSpectrumDlg dlg(this);
  if (dlg.DoModal() != IDOK || !dlg.m_bGenerated) return;
  Store(std::move(dlg.m_spectrum), -1);
}

void CResponseSpectraDlg::OnImport() {
  if (readOnly_) return;
  FileDialogRequest request;
  request.title = "Add Response Spectrum from File";
  request.filters = kFileFilters;
  const std::string path = GetPrompter().OpenFileName(this, request);
  if (path.empty()) return;
  try {
    Store(model::ImportSpectrumFile(path), -1);
  } catch (const fmException& e) {
    MessageBox(e.what());
  }
}

void CResponseSpectraDlg::OnModify() {
  const int row = CurrentRow();
  if (readOnly_ || row < 0) return;
  if (!AskYesNo(kMsgModify)) return;
  CResponseSpectrumDataDlg dlg(this);
  const std::vector<fmResponseSpectrum>& spectra = CResponseSpectrumManager::Instance().GetSpectra();
  dlg.m_spectrum = spectra[static_cast<size_t>(row)];
  for (size_t i = 0; i < spectra.size(); ++i)
    if (static_cast<int>(i) != row) dlg.m_otherNames.push_back(spectra[i].name);
  if (dlg.DoModal() != IDOK) return;
  Store(std::move(dlg.m_spectrum), row);
}

void CResponseSpectraDlg::OnDelete() {
  const int row = CurrentRow();
  if (readOnly_ || row < 0) return;
  if (row == 0) {
    MessageBox(kMsgFirst);
    return;
  }
  if (!AskYesNo(kMsgDelete)) return;
  std::vector<fmResponseSpectrum> spectra = CResponseSpectrumManager::Instance().GetSpectra();
  spectra.erase(spectra.begin() + row);
  if (Commit(std::move(spectra))) Refresh(row - 1);
}

void CResponseSpectraDlg::OnExport() {
  const int row = CurrentRow();
  if (row < 0) return;
  const fmResponseSpectrum& s = CResponseSpectrumManager::Instance().GetSpectra()[static_cast<size_t>(row)];
  FileDialogRequest request;
  request.title = "Export Response Spectrum";
  request.defaultName = s.name + ".csv";
  request.defaultExtension = "csv";
  request.filters = kFileFilters;
  const std::string path = GetPrompter().SaveFileName(this, request);
  if (path.empty()) return;
  try {
    model::ExportSpectrumFile(s, path);
  } catch (const std::exception& e) {
    MessageBox(e.what(), MessageIcon::Error);
  }
}
