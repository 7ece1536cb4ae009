#pragma once

#include <QApplication>

#include "ratio_reporter.h"
#include "ui/theme.h"

namespace quorvane {

/// The whole `main` of a program of benchmarks that need windows.
/// @param registerAll  registers them
inline int RunWindowBenchmarks(int argc, char** argv, void (*registerAll)()) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  ApplyTheme(application);
  registerAll();
  return RunRatioBenchmarks(argc, argv);
}

}  // namespace quorvane
