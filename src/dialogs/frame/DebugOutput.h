#pragma once
#include <functional>
#include <string>

// Developer diagnostics (a missing string or control); never shown to the user.
using DebugSink = std::function<void(const std::string&)>;

void DebugOutput(const std::string& line);
// Replaces the sink (qDebug by default) and returns the previous one.
DebugSink SetDebugSink(DebugSink sink);
