#pragma once
#include <gtest/gtest.h>

#include <QSettings>
#include <string>
#include <vector>

#include "dialogs/frame/DebugOutput.h"
#include "dialogs/frame/Prompter.h"

// A fixture for dialog tests: every prompt is scripted and recorded (an unscripted
// question fails the test), debug lines are captured, and preferences start empty.
class DialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    prompter.onUnexpected = [](const std::string& what) { ADD_FAILURE() << "unexpected prompt: " << what; };
    previousPrompter = SetPrompter(&prompter);
    previousSink = SetDebugSink([this](const std::string& line) { debugLines.push_back(line); });
    QSettings().clear();
  }
  void TearDown() override {
    SetPrompter(previousPrompter);
    SetDebugSink(previousSink);
    EXPECT_EQ(prompter.PendingAnswers(), 0u) << "scripted answers left unused";
  }

  std::vector<std::string> Messages() const { return prompter.Texts(); }

  ScriptedPrompter prompter;
  std::vector<std::string> debugLines;

 private:
  Prompter* previousPrompter = nullptr;
  DebugSink previousSink;
};
