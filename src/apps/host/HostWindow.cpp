#include "apps/host/HostWindow.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenuBar>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <map>

#include "apps/host/AnalysisRun.h"
#include "apps/host/DialogRunner.h"
#include "apps/host/HostSettings.h"
#include "apps/host/NodeTableModel.h"
#include "apps/host/SummaryTableModel.h"
#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/frame/Prompter.h"
#include "resources/resources.h"
#include "tools/format.h"

namespace {

// A read-only table of whole rows in one height: the view then never measures its rows.
QTableView* MakeTable(const char* name, QAbstractItemModel* model, QWidget* parent) {
  auto* table = new QTableView(parent);
  table->setObjectName(name);
  table->setModel(model);
  table->verticalHeader()->hide();
  table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 4);
  table->setAlternatingRowColors(true);
  table->setShowGrid(false);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->horizontalHeader()->setHighlightSections(false);
  return table;
}

// The caption the dialog shows, from the string table; the class name when it has none.
QString DialogCaption(const DialogClassInfo& info) {
  const std::unique_ptr<CDialog> dlg = info.create(nullptr);
  const res::DialogTemplate* form = dlg ? res::FindTemplate(dlg->TemplateId()) : nullptr;
  if (form && form->captionStringId != 0)
    if (const auto text = res::LoadString(form->captionStringId); text && !text->empty())
      return QString::fromStdString(*text);
  return QString::fromStdString(info.className);
}

}  // namespace

HostWindow::HostWindow(QWidget* parent)
    : QMainWindow(parent),
      summaryModel_(new SummaryTableModel(this)),
      summary_(MakeTable("summary", summaryModel_, this)),
      nodeModel_(new NodeTableModel(model_.doc, this)),
      nodes_(MakeTable("nodes", nodeModel_, this)) {
  summary_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  summary_->horizontalHeader()->setStretchLastSection(true);
  auto* splitter = new QSplitter(Qt::Vertical, this);
  splitter->addWidget(summary_);
  splitter->addWidget(nodes_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({136, 344});
  setCentralWidget(splitter);
  BuildMenus();
  resize(720, 480);
  RefreshView();
}

void HostWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  file->addAction("&New", QKeySequence::New, this, [this] { NewModel(); });
  file->addAction("&Open...", QKeySequence::Open, this, [this] { OnOpen(); });
  file->addAction("&Save", QKeySequence::Save, this, [this] { SaveModel(); });
  file->addAction("Save &As...", QKeySequence::SaveAs, this, [this] { SaveModelAs(); });
  file->addSeparator();
  file->addAction("&Quit", QKeySequence::Quit, this, [this] { close(); });

  // The places the library's messages send the user to.
  QMenu* edit = menuBar()->addMenu("&Edit");
  lockAction_ = edit->addAction("Lock Model", this, [this] { SetModelLocked(true); });
  unlockAction_ = edit->addAction("Unlock Model", this, [this] { SetModelLocked(false); });
  QMenu* settings = menuBar()->addMenu("&Settings");
  QMenu* dataOptions = settings->addMenu("Data Options");
  selectedOnlyAction_ = dataOptions->addAction("Show only selected entities in spreadsheet");
  selectedOnlyAction_->setCheckable(true);
  connect(selectedOnlyAction_, &QAction::triggered, this, [this](bool on) { SetShowSelectedOnly(on); });

  QMenu* analysis = menuBar()->addMenu("&Analysis");
  analysis->addAction("&Run", this, [this] {
    QSettings settings;
    RunAnalysisAndOfferResults(model_, AnalysisMasses(settings), this);
    RefreshView();
  })->setObjectName("analysisRun");
  // The masses of the modes: a choice kept in the settings, as the units a new model takes.
  QMenu* masses = analysis->addMenu("&Masses for Modes");
  auto* massChoice = new QActionGroup(this);
  QSettings stored;
  const analysis::MassModel current = AnalysisMasses(stored);
  for (const auto& [kind, text] : {std::pair{analysis::MassModel::Lumped, "&Lumped at the Nodes"},
                                   std::pair{analysis::MassModel::Consistent, "&Consistent"}}) {
    QAction* action = masses->addAction(text);
    action->setCheckable(true);
    action->setChecked(current == kind);
    action->setObjectName(QString("analysisMasses_") + analysis::MassModelName(kind));
    massChoice->addAction(action);
    const analysis::MassModel chosen = kind;
    connect(action, &QAction::triggered, this, [chosen] {
      QSettings settings;
      StoreAnalysisMasses(chosen, settings);
    });
  }

  // One menu entry per registered dialog, by its caption, grouped by family in registration
  // order; the class name is the entry's tooltip.
  QMenu* dialogs = menuBar()->addMenu("&Dialogs");
  std::map<std::string, QMenu*> families;
  for (const DialogClassInfo& info : RegisteredDialogClasses()) {
    QMenu*& menu = families[info.family];
    if (!menu) {
      menu = dialogs->addMenu(QString::fromStdString(info.family));
      menu->setToolTipsVisible(true);
    }
    const std::string name = info.className;
    QAction* action = menu->addAction(DialogCaption(info), this, [this, name] {
      RunDialog(name);
      RefreshView();
    });
    action->setToolTip(QString::fromStdString(name));
    action->setObjectName(QString::fromStdString(name));
  }
}

void HostWindow::SetModelLocked(bool locked) {
  if (model_.doc.display.modelLocked == locked) return;
  model_.doc.display.modelLocked = locked;
  model_.modified = true;
  RefreshView();
}

void HostWindow::SetShowSelectedOnly(bool on) {
  if (model_.doc.display.showSelectedOnly == on) return;
  model_.doc.display.showSelectedOnly = on;
  model_.modified = true;
  RefreshView();
}

void HostWindow::RefreshView() {
  const auto& doc = model_.doc;
  const QString name = model_.path.empty() ? "Untitled" : QFileInfo(QString::fromStdString(model_.path)).fileName();
  setWindowTitle(QString("%1%2 - Norvane").arg(name, model_.modified ? "*" : ""));
  lockAction_->setEnabled(!doc.display.modelLocked);
  unlockAction_->setEnabled(doc.display.modelLocked);
  selectedOnlyAction_->setChecked(doc.display.showSelectedOnly);
  std::vector<std::pair<QString, QString>> summary;
  auto add = [&summary](const QString& key, const QString& value) { summary.emplace_back(key, value); };
  add("Title", QString::fromStdString(doc.title));
  add("File", QString::fromStdString(model_.path));
  add("Length unit", QString::fromStdString(doc.units.Label(fmUnit::Length)));
  add("Force unit", QString::fromStdString(doc.units.Label(fmUnit::Force)));
  add("Nodes", QString::fromStdString(tools::Format("%zu", doc.nodes.size())));
  add("Members", QString::fromStdString(tools::Format("%zu", doc.members.size())));
  add("Supports", QString::fromStdString(tools::Format("%zu", doc.supports.size())));
  add("Model locked", doc.display.modelLocked ? "yes" : "no");
  add("Show only selected", doc.display.showSelectedOnly ? "yes" : "no");
  summaryModel_->SetRows(std::move(summary));

  // The nodes in the model's units and display format, as an embedding program shows them.
  nodeModel_->Refresh();
  QString status = model_.modified ? "Modified" : "Saved";
  if (!model_.status.empty()) status += " - " + QString::fromStdString(model_.status);
  statusBar()->showMessage(status);
}

bool HostWindow::NewModel() {
  if (!ConfirmDiscard()) return false;
  QSettings settings;
  model_ = HostModel{};
  model_.doc.units = DefaultUnits(settings);
  RefreshView();
  return true;
}

bool HostWindow::OpenModel(const std::string& path) {
  // Memory may run out in the reading or in showing what was read: either way the file is
  // named and the model that was open stays, never an abort.
  const auto notEnoughMemory = [&] {
    GetPrompter().Message(this, model::DocumentLoadError(path).what(), MessageIcon::Error);
    return false;
  };
  model::ModelDocument opened;
  try {
    opened = model::LoadModelDocument(path);
  } catch (const std::bad_alloc&) {
    return notEnoughMemory();
  } catch (const std::exception& e) {
    GetPrompter().Message(this, e.what(), MessageIcon::Error);
    return false;
  }
  std::string previousPath;
  bool previousModified = model_.modified, swapped = false;
  try {
    std::string newPath = path;
    previousPath = model_.path;
    std::swap(model_.doc, opened);
    model_.path.swap(newPath);
    model_.modified = false;
    swapped = true;
    RefreshView();
    return true;
  } catch (const std::bad_alloc&) {
    if (swapped) {
      std::swap(model_.doc, opened);
      model_.path.swap(previousPath);
      model_.modified = previousModified;
      opened = model::ModelDocument();
      try {
        RefreshView();
      } catch (const std::bad_alloc&) {
        // The view stays as it was; the model under it is the one it showed.
      }
    }
    return notEnoughMemory();
  }
}

void HostWindow::OnOpen() {
  if (!ConfirmDiscard()) return;
  FileDialogRequest request{"Open Model", "", "", "json", {"Norvane Model (*.json)", "All Files (*)"}};
  const std::string path = GetPrompter().OpenFileName(this, request);
  if (!path.empty()) OpenModel(path);
}

bool HostWindow::SaveModel() {
  if (model_.path.empty()) return SaveModelAs();
  try {
    model::SaveModelDocument(model_.doc, model_.path);
  } catch (const std::exception& e) {
    GetPrompter().Message(this, e.what(), MessageIcon::Error);
    return false;
  }
  model_.modified = false;
  RefreshView();
  return true;
}

bool HostWindow::SaveModelAs() {
  FileDialogRequest request{"Save Model As", "", model_.path, "json", {"Norvane Model (*.json)"}};
  const std::string path = GetPrompter().SaveFileName(this, request);
  if (path.empty()) return false;
  const std::string previous = model_.path;
  model_.path = path;
  if (!SaveModel()) {
    model_.path = previous;
    return false;
  }
  return true;
}

int HostWindow::RunDialog(const std::string& className) {
  model_.status.clear();
  const int result = RunBoundDialog(className, model_, this);
  RefreshView();
  return result;
}

bool HostWindow::ConfirmDiscard() {
  if (!model_.modified) return true;
  switch (GetPrompter().QuestionWithCancel(this, "The model has been changed.\nDo you want to save the changes?")) {
    case Answer::Yes: return SaveModel();
    case Answer::No: return true;
    case Answer::Cancel: return false;
  }
  return false;
}

void HostWindow::closeEvent(QCloseEvent* event) {
  if (ConfirmDiscard())
    event->accept();
  else
    event->ignore();
}
