#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/application.h"

int main(int count, char** arguments) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  QApplication application(count, arguments);
  desktop::PrepareApplication(application);
  return RUN_ALL_TESTS();
}
