#include <gtest/gtest.h>

#include <QApplication>

#include "app/ekrany_gui.h"

// Every test program runs with a QApplication, so that screens can be built offscreen.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  ZarejestrujEkrany();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
