// Window tests run with the program's own look on the offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>

#include "ui/accessible_roles.h"
#include "ui/theme.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  quorvane::ApplyTheme(application);
  quorvane::InstallAccessibleRoles();
  return RUN_ALL_TESTS();
}
