#include <QApplication>
#include <QFileInfo>
#include <csignal>
#include <iostream>
#include <map>
#include <new>
#include <string>
#include <vector>

#include "apps/host/DialogBindings.h"
#include "apps/host/DialogRunner.h"
#include "apps/host/HostWindow.h"
#include "dialogs/Library.h"
#include "dialogs/frame/DialogRegistry.h"
#include "dialogs/frame/Prompter.h"
#include "tools/data_location.h"
#include "tools/parse.h"

namespace {

const char* kUsage =
    "usage: norvane-host [MODEL] [--screenshot FILE]\n"
    "       norvane-host --show CLASS [--model FILE] [--screenshot FILE] [--print-to-pdf FILE]\n"
    "       norvane-host --show CResultsDlg --kind N [--case N] [--query ID] ...\n"
    "       norvane-host --show CLASS --press BUTTON --screenshot FILE\n"
    "       norvane-host --list\n"
    "\n"
    "Without --show the main window opens on MODEL (the bundled example by default).\n"
    "--show runs one dialog on the model; with --screenshot it renders the dialog to a PNG\n"
    "after its set-up and exits; with --print-to-pdf it prints the dialog's whole table to a\n"
    "PDF file, as \"Print...\" lays it out, and exits. --kind, --case and --query are handed to\n"
    "the dialog's binding (the results dialog: report kind, 1-based case or mode, object number).\n"
    "--press clicks the button of that caption (e.g. Compute) before the screenshot.\n"
    "--list prints the dialog classes by family.\n";

struct Options {
  std::string model;
  std::string showClass;
  std::string screenshot;
  std::string printToPdf;
  std::map<std::string, std::string> showOptions;  // "kind" -> "1"
};

bool ParseOptions(const std::vector<std::string>& args, Options& o, std::string& error) {
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&](std::string& out) {
      if (i + 1 >= args.size()) {
        error = a + " needs a value";
        return false;
      }
      out = args[++i];
      return true;
    };
    if (a == "--show") {
      if (!value(o.showClass)) return false;
    } else if (a == "--model") {
      if (!value(o.model)) return false;
    } else if (a == "--screenshot") {
      if (!value(o.screenshot)) return false;
    } else if (a == "--print-to-pdf") {
      if (!value(o.printToPdf)) return false;
    } else if (a == "--list") {
      if (args.size() != 1) {
        error = "--list takes no other option";
        return false;
      }
    } else if (a == "--press") {
      if (!value(o.showOptions["press"])) return false;
    } else if (a == "--kind" || a == "--case" || a == "--query") {
      std::string number;
      if (!value(number)) return false;
      if (!tools::ParseInt32(number)) {
        error = a + " needs a whole number";
        return false;
      }
      o.showOptions[a.substr(2)] = number;
    } else if (!a.empty() && a[0] == '-') {
      error = "unknown option " + a;
      return false;
    } else if (o.model.empty()) {
      o.model = a;
    } else {
      error = "more than one model file given";
      return false;
    }
  }
  if (!o.printToPdf.empty() && o.showClass.empty()) {
    error = "--print-to-pdf needs --show CLASS";
    return false;
  }
  return true;
}

std::string ExampleModel() { return tools::InstalledDataDirectory() + "/examples/building.json"; }

}  // namespace

int main(int argc, char** argv) {
  // Past a file-size limit a write then fails with EFBIG and is reported, instead of the
  // signal ending the program with a temporary file left beside the target.
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication app(argc, argv);
  QApplication::setOrganizationName("Norvane");
  QApplication::setApplicationName("norvane-host");

  std::vector<std::string> args;
  for (const QString& a : QApplication::arguments().mid(1)) args.push_back(a.toStdString());
  if (!args.empty() && (args[0] == "--help" || args[0] == "-h")) {
    std::cout << kUsage;
    return 0;
  }
  Options options;
  std::string error;
  if (!ParseOptions(args, options, error)) {
    std::cerr << "norvane-host: " << error << "\n" << kUsage;
    return 2;
  }

  NorvaneDlgsLibrary library;
  RegisterAllBindings();
  if (args.size() == 1 && args[0] == "--list") {
    for (const DialogClassInfo& info : RegisteredDialogClasses()) std::cout << info.family << "\t" << info.className << "\n";
    return 0;
  }

  HostWindow window;
  const std::string modelPath = options.model.empty() ? ExampleModel() : options.model;
  if (!options.screenshot.empty() || !options.showClass.empty()) {
    // Headless use: a model that cannot be read is an error, not a message box.
    try {
      window.model().doc = model::LoadModelDocument(modelPath);
      window.model().path = modelPath;
      window.model().showOptions = options.showOptions;
      window.RefreshView();
    } catch (const std::bad_alloc&) {
      std::cerr << "norvane-host: " << model::DocumentLoadError(modelPath).what() << "\n";
      return 1;
    } catch (const std::exception& e) {
      std::cerr << "norvane-host: " << e.what() << "\n";
      return 1;
    }
  } else {
    window.OpenModel(modelPath);
  }

  if (!options.printToPdf.empty()) {
    int pages = 0;
    if (!PrintDialogGridToPdf(options.showClass, window.model(), options.printToPdf, error, &pages)) {
      std::cerr << "norvane-host: " << error << "\n";
      return 1;
    }
    std::cout << "Wrote " << options.printToPdf << " (" << pages << (pages == 1 ? " page)\n" : " pages)\n");
    if (options.screenshot.empty()) return 0;
  }
  if (!options.showClass.empty()) {
    if (options.screenshot.empty()) {
      const int result = window.RunDialog(options.showClass);
      if (result == 0) {
        std::cerr << "norvane-host: unknown dialog class \"" << options.showClass << "\"\n";
        return 2;
      }
      window.ConfirmDiscard();
      return 0;
    }
    if (!RenderDialogToPng(options.showClass, window.model(), options.screenshot, error)) {
      std::cerr << "norvane-host: " << error << "\n";
      return 1;
    }
    std::cout << "Wrote " << options.screenshot << "\n";
    return 0;
  }
  if (!options.screenshot.empty()) {
    if (!RenderWidgetToPng(window, options.screenshot, error)) {
      std::cerr << "norvane-host: " << error << "\n";
      return 1;
    }
    std::cout << "Wrote " << options.screenshot << "\n";
    return 0;
  }
  window.show();
  return app.exec();
}
