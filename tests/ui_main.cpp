#include <gtest/gtest.h>

#include <QApplication>

#include "ui/toolkit/style.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // ctest asks for the names without the environment that the tests get, so on a machine without a
  // screen the application couldn't start.
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
  QApplication application(argc, argv);
  zarvo::DressUp(application);
  return RUN_ALL_TESTS();
}
