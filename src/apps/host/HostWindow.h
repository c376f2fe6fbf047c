#pragma once
#include <QMainWindow>
#include <memory>
#include <string>

#include "apps/host/HostModel.h"

class QAction;
class QLabel;
class NodeTableModel;
class QTableView;
class SummaryTableModel;

// The demo host: opens a model document, lists the library's dialogs by family in its
// menus and runs them on the open model as an embedding program would.
class HostWindow : public QMainWindow {
 public:
  explicit HostWindow(QWidget* parent = nullptr);

  // Starts an empty, untitled model in the default units; false when the user keeps the old one.
  bool NewModel();
  // Opens a document; on failure shows why and keeps the open one. Returns success.
  bool OpenModel(const std::string& path);
  bool SaveModel();
  bool SaveModelAs();
  // Runs a registered dialog on the model; returns its DoModal result.
  int RunDialog(const std::string& className);
  // Asks to save a changed model; false when the user cancels.
  bool ConfirmDiscard();
  // "Edit > Lock Model" / "Unlock Model" and "Settings > Data Options > Show only selected
  // entities in spreadsheet": both are kept in the document's display settings.
  void SetModelLocked(bool locked);
  void SetShowSelectedOnly(bool on);

  HostModel& model() { return model_; }
  void RefreshView();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void OnOpen();

  HostModel model_;
  QAction* lockAction_ = nullptr;
  QAction* unlockAction_ = nullptr;
  QAction* selectedOnlyAction_ = nullptr;
  SummaryTableModel* summaryModel_;
  QTableView* summary_;
  NodeTableModel* nodeModel_;
  QTableView* nodes_;
};
