#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QTableView>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <span>
#include <string>

#include "dialogs/grid/TSpread.h"
#include "dialogs/grid/export.h"
#include "dialogs/grid/grid_ops.h"
#include "dialogs/model/node_grid.h"

// The node table of a model of a million nodes: filling the grid, reading it back on OK,
// the three exports, adding rows and the memory the open grid takes.
namespace {

constexpr int kNodes = 1000000;

const std::vector<fmNd>& Nodes() {
  static const std::vector<fmNd> nodes = [] {
    std::vector<fmNd> v;
    v.reserve(kNodes);
    for (int i = 0; i < kNodes; ++i) {
      // Coordinates with the decimals a real model carries, some of them beyond "%g".
      const double x = (i % 1000) * 2.5, y = (i / 1000) * 3.125, z = (i % 37) * 0.1 + 1.0 / 3.0;
      const uint32_t flags = i % 50 == 0 ? fmNd::kSelected : i % 97 == 0 ? fmNd::kFrozen : 0;
      v.push_back({static_cast<uint32_t>(i + 1), flags, x, y, z});
    }
    return v;
  }();
  return nodes;
}

const grid::Sheet& FilledSheet() {
  static const grid::Sheet sheet = [] {
    grid::Sheet s;
    nodegrid::Fill(s, Nodes(), fmUnit(), false, 0xF0F5FF, false);
    return s;
  }();
  return sheet;
}

double MaxRssMB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024.0;
}

// Resident memory now (not the peak), from /proc.
double CurrentRssMB() {
  std::ifstream statm("/proc/self/statm");
  long pages = 0, resident = 0;
  statm >> pages >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

// A folder for the exported files, removed when the program ends.
struct ScratchFolder {
  std::string path;
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "norvane-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data())) path = pattern;
  }
  ~ScratchFolder() {
    std::error_code ec;
    if (!path.empty()) std::filesystem::remove_all(path, ec);
  }
};

std::string ScratchFile(const std::string& name) {
  static const ScratchFolder folder;
  return (folder.path.empty() ? std::string("/tmp") : folder.path) + "/" + name;
}

// Memory first, before the exports' buffers raise the process's peak. Run alone for the
// figure: --benchmark_filter=OpenGrid
void BM_OpenGridMemory(benchmark::State& state) {
  const std::vector<fmNd>& nodes = Nodes();
  const double before = CurrentRssMB();
  double withSheet = 0;
  for (auto _ : state) {
    grid::Sheet sheet;
    nodegrid::Fill(sheet, nodes, fmUnit(), false, 0xF0F5FF, false);
    withSheet = CurrentRssMB();
    benchmark::DoNotOptimize(sheet.MaxRows());
  }
  state.counters["nodes_MB"] = before;
  state.counters["sheet_MB"] = withSheet - before;
  state.counters["rss_MB"] = withSheet;
  state.counters["maxrss_MB"] = MaxRssMB();
}
BENCHMARK(BM_OpenGridMemory)->Iterations(1)->Unit(benchmark::kMillisecond);

// The grid as the dialog shows it: TSpread with its view and model over the filled sheet.
void BM_OpenGridWidget(benchmark::State& state) {
  static int argc = 1;
  static char name[] = "norvane_bench";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication* app = new QApplication(argc, argv);
  (void)app;
  const std::vector<fmNd>& nodes = Nodes();
  const double before = CurrentRssMB();
  double open = 0;
  for (auto _ : state) {
    TSpread spread;
    {
      TSpread::RedrawGuard guard(spread);
      nodegrid::Fill(spread.sheet(), nodes, fmUnit(), false, 0xF0F5FF, false);
    }
    spread.resize(900, 600);
    spread.show();
    QApplication::processEvents();
    spread.ShowRow(kNodes / 2);  // scroll to the middle and draw there
    QApplication::processEvents();
    open = CurrentRssMB();
    benchmark::DoNotOptimize(spread.view()->model()->rowCount());
  }
  state.counters["grid_MB"] = open - before;
  state.counters["rss_MB"] = open;
  state.counters["maxrss_MB"] = MaxRssMB();
}
BENCHMARK(BM_OpenGridWidget)->Iterations(1)->Unit(benchmark::kMillisecond);

void BM_NodeGridFill(benchmark::State& state) {
  const std::vector<fmNd>& nodes = Nodes();
  for (auto _ : state) {
    state.PauseTiming();
    std::optional<grid::Sheet> sheet(std::in_place);
    state.ResumeTiming();
    nodegrid::Fill(*sheet, nodes, fmUnit(), false, 0xF0F5FF, false);
    state.PauseTiming();
    sheet.reset();
    state.ResumeTiming();
  }
  state.counters["rows"] = kNodes;
}
BENCHMARK(BM_NodeGridFill)->Unit(benchmark::kMillisecond);

// OK's save: every row read back into a node.
void BM_NodeGridRead(benchmark::State& state) {
  const grid::Sheet& sheet = FilledSheet();
  for (auto _ : state) {
    const nodegrid::ReadResult result = nodegrid::Read(sheet, Nodes());
    if (result.failure || result.nodes.size() != Nodes().size()) state.SkipWithError("read failed");
    benchmark::DoNotOptimize(result.nodes.data());
  }
}
BENCHMARK(BM_NodeGridRead)->Unit(benchmark::kMillisecond);

void Export(benchmark::State& state, const char* name) {
  const grid::Sheet& sheet = FilledSheet();
  const std::string path = ScratchFile(name);
  for (auto _ : state) {
    if (const auto failure = grid::ExportSheet(sheet, path, false, "Node Table")) state.SkipWithError(failure->c_str());
  }
  std::error_code ec;
  state.counters["file_MB"] = static_cast<double>(std::filesystem::file_size(path, ec)) / (1024.0 * 1024.0);
  std::filesystem::remove(path, ec);
}
void BM_ExportText(benchmark::State& state) { Export(state, "nodes.txt"); }
void BM_ExportHtml(benchmark::State& state) { Export(state, "nodes.htm"); }
void BM_ExportWorkbook(benchmark::State& state) { Export(state, "nodes.xlsx"); }
BENCHMARK(BM_ExportText)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ExportHtml)->Unit(benchmark::kMillisecond);

// As norvane-cli exports: from the nodes, filled part by part, so the time includes the fill
// that BM_NodeGridFill and BM_ExportText take one after the other.
void ExportByParts(benchmark::State& state, const std::string& name) {
  const std::vector<fmNd>& nodes = Nodes();
  const std::string path = ScratchFile(name);
  for (auto _ : state) {
    const auto failure = grid::ExportRows(
        kNodes,
        [&](grid::Sheet& part, int first, int count) {
          nodegrid::Fill(part, std::span<const fmNd>(nodes).subspan(first, count), fmUnit(), false, 0xF0F5FF, false);
        },
        path, false, nodegrid::kTableTitle);
    if (failure) state.SkipWithError(failure->c_str());
  }
  std::error_code ec;
  state.counters["file_MB"] = static_cast<double>(std::filesystem::file_size(path, ec)) / 1e6;
  std::filesystem::remove(path, ec);
}
void BM_ExportTextByParts(benchmark::State& state) { ExportByParts(state, "parts.txt"); }
void BM_ExportHtmlByParts(benchmark::State& state) { ExportByParts(state, "parts.htm"); }
BENCHMARK(BM_ExportTextByParts)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ExportHtmlByParts)->Unit(benchmark::kMillisecond);
// The workbook is compressed on every core: wall time, and the CPU time of all threads.
BENCHMARK(BM_ExportWorkbook)->Unit(benchmark::kMillisecond)->Iterations(2)->MeasureProcessCPUTime()->UseRealTime();

// Coordinates as a survey or a mesher gives them, every digit used: the regular ones above
// share few distinct texts and compress far better than a real model does.
void BM_ExportWorkbookRandomCoordinates(benchmark::State& state) {
  static const grid::Sheet sheet = [] {
    std::mt19937_64 random(23);
    std::uniform_real_distribution<double> coordinate(-5000.0, 5000.0);
    std::vector<fmNd> nodes(kNodes);
    for (int i = 0; i < kNodes; ++i)
      nodes[static_cast<size_t>(i)] = {static_cast<uint32_t>(i + 1), 0, coordinate(random), coordinate(random),
                                       coordinate(random)};
    grid::Sheet s;
    nodegrid::Fill(s, nodes, fmUnit(), false, 0xF0F5FF, false);
    return s;
  }();
  const std::string path = ScratchFile("random.xlsx");
  for (auto _ : state)
    if (const auto failure = grid::ExportSheet(sheet, path, false, "Node Table")) state.SkipWithError(failure->c_str());
  std::error_code ec;
  state.counters["file_MB"] = static_cast<double>(std::filesystem::file_size(path, ec)) / (1024.0 * 1024.0);
  std::filesystem::remove(path, ec);
}
BENCHMARK(BM_ExportWorkbookRandomCoordinates)->Unit(benchmark::kMillisecond)->Iterations(2)->MeasureProcessCPUTime()->UseRealTime();

// "New Rows" with its largest count on the million-row grid.
void BM_AddRows(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::optional<grid::Sheet> sheet(FilledSheet());
    state.ResumeTiming();
    benchmark::DoNotOptimize(grid::AddRows(*sheet, static_cast<int>(state.range(0)), true));
    state.PauseTiming();
    sheet.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_AddRows)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
