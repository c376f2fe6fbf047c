#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <clocale>

#include "apps/host/DialogBindings.h"
#include "dialogs/Library.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Settings of the test run live in a scratch folder, never in the user's profile.
  QTemporaryDir settingsDir;
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
  QApplication app(argc, argv);  // sets the C library's locale from the environment
  // System error texts (strerror) in English, as the expected messages are written.
  std::setlocale(LC_MESSAGES, "C");
  QApplication::setOrganizationName("NorvaneTests");
  QApplication::setApplicationName("dialog_tests");
  NorvaneDlgsLibrary library;
  RegisterAllBindings();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
