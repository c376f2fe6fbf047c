#include <QAction>
#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <filesystem>

#include "apps/host/AnalysisRun.h"
#include "apps/host/HostWindow.h"
#include "dialogs/frame/CProgressDlg.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"

namespace fs = std::filesystem;

namespace {

const std::string kExample = std::string(NORVANE_EXAMPLES_DIR) + "/building.json";

// Records what the progress window goes through: shown, its captions, hidden.
class ProgressWatcher : public QObject {
 public:
  ProgressWatcher() { qApp->installEventFilter(this); }
  ~ProgressWatcher() override { qApp->removeEventFilter(this); }
  std::vector<std::string> events;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (auto* dlg = dynamic_cast<CProgressDlg*>(object)) {
      if (event->type() == QEvent::Show) events.push_back("shown");
      if (event->type() == QEvent::Hide) events.push_back("hidden");
      if (event->type() == QEvent::WindowTitleChange) {
        const std::string title = dlg->windowTitle().toStdString();
        if (events.empty() || events.back() != title) events.push_back(title);
      }
    }
    return false;
  }
};

class HostAnalysisTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    fs::copy_file(kExample, dir / "building.json");
    ASSERT_TRUE(window.OpenModel(dir / "building.json"));
  }
  void Run() { window.findChild<QAction*>("analysisRun")->trigger(); }

  TempDir dir;
  HostWindow window;
};

}  // namespace

// "Analysis > Run" on the example: the engine's results land in the document (every case
// and combination, the modes), the progress window was shown, followed the work to 100 %
// and was hidden, and the results dialog was offered.
TEST_F(HostAnalysisTest, RunWritesTheResultsAndDrivesTheProgressWindow) {
  model::ModelDocument& doc = window.model().doc;
  doc.results = {};
  prompter.QueueAnswer(false);
  ProgressWatcher watcher;
  Run();
  ASSERT_EQ(doc.results.cases.size(), doc.loadCases.size() + doc.loadCombs.size());
  ASSERT_EQ(doc.results.results.size(), doc.results.cases.size());
  EXPECT_EQ(doc.results.results[0].displacements.size(), doc.nodes.size());
  double sumY = 0;  // the dead load's supports carry it upwards
  for (const fmResult6Val& r : doc.results.results[0].reactions) sumY += r.v[1];
  EXPECT_GT(sumY, 0);
  EXPECT_FALSE(doc.results.eigenModes.empty());  // the example's materials have mass
  EXPECT_TRUE(window.model().modified);
  EXPECT_TRUE(window.model().status.ends_with("; Modal: 12 modes, lumped masses")) << window.model().status;
  EXPECT_EQ(prompter.Texts(), (std::vector<std::string>{kOpenResultsQuestion}));
  // In this order, with the engine's stages between.
  std::vector<std::string> expected = {"Sparse Matrix Factorization (0%)", "shown", "Sparse Matrix Factorization (100%)",
                                       "hidden"};
  auto at = watcher.events.begin();
  for (const std::string& e : expected) {
    at = std::find(at, watcher.events.end(), e);
    ASSERT_NE(at, watcher.events.end()) << e << " missing or out of order";
  }
  EXPECT_EQ(watcher.events.back(), "hidden");
}

// "Analysis > Masses for Modes": lumped until the user picks consistent masses, which the
// next run uses (the status says so, and the first period is shorter, as consistent masses
// give) and which the next window starts with.
TEST_F(HostAnalysisTest, TheMassesOfTheModesAreChosenInTheAnalysisMenu) {
  auto* lumped = window.findChild<QAction*>("analysisMasses_lumped");
  auto* consistent = window.findChild<QAction*>("analysisMasses_consistent");
  ASSERT_TRUE(lumped && consistent);
  EXPECT_TRUE(lumped->isChecked());
  EXPECT_FALSE(consistent->isChecked());
  prompter.QueueAnswer(false);
  Run();
  const double lumpedOmega2 = window.model().doc.results.eigenModes.at(0).omega2;

  consistent->trigger();
  EXPECT_FALSE(lumped->isChecked());
  prompter.QueueAnswer(false);
  Run();
  EXPECT_TRUE(window.model().status.ends_with("; Modal: 12 modes, consistent masses")) << window.model().status;
  EXPECT_GT(window.model().doc.results.eigenModes.at(0).omega2, lumpedOmega2);

  HostWindow next;
  EXPECT_TRUE(next.findChild<QAction*>("analysisMasses_consistent")->isChecked());
}

// A model the engine refuses: the message names the free degree of freedom, the progress
// window is hidden again and the model keeps its results and its saved state.
TEST_F(HostAnalysisTest, ARefusedModelIsExplainedAndKeptAsItWas) {
  model::ModelDocument& doc = window.model().doc;
  doc.supports.clear();
  const fmSolution before = doc.results;
  ProgressWatcher watcher;
  Run();
  ASSERT_EQ(prompter.prompts().size(), 1u);
  EXPECT_EQ(prompter.prompts()[0].icon, MessageIcon::Error);
  EXPECT_NE(prompter.prompts()[0].text.find("is free to move"), std::string::npos) << prompter.prompts()[0].text;
  EXPECT_EQ(doc.results.cases.size(), before.cases.size());
  EXPECT_EQ(doc.results.results.size(), before.results.size());
  EXPECT_FALSE(window.model().modified);
  ASSERT_FALSE(watcher.events.empty());
  EXPECT_EQ(watcher.events.back(), "hidden");
}
