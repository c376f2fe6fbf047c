#include "dialogs/frame/DebugOutput.h"

#include <QDebug>

namespace {
DebugSink& Sink() {
  static DebugSink sink;
  return sink;
}
}  // namespace

void DebugOutput(const std::string& line) {
  if (Sink())
    Sink()(line);
  else
    qDebug().noquote() << QString::fromStdString(line);
}

DebugSink SetDebugSink(DebugSink sink) {
  DebugSink previous = std::move(Sink());
  Sink() = std::move(sink);
  return previous;
}
