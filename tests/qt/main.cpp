#include <QtWidgets/QApplication>
#include <gtest/gtest.h>
#include <iostream>
#include <memory>

#include "tests/qt/forms/QtHand.h"
#include "tests/qt/forms/QtStage.h"
#include "tests/support/PagesTest.h"

namespace {

/// Returns a simulated user that runs the scripts of the tests for pages on windows, with mouse and keyboard.
plotsmith::test::Hands HandsOnWindows() {
  auto windows = std::make_shared<plotsmith::qt::QtView>();
  return {std::make_unique<plotsmith::test::QtHand>(*windows), [windows](const auto& player) {
            return std::make_shared<plotsmith::test::QtStage>(windows, player);
          }};
}

/// Ignores a warning of the offscreen platform, which can't raise windows.
void TellUnlessExpected(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QLatin1String("This plugin does not support"))) {
    std::cerr << text.toStdString() << "\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(TellUnlessExpected);
  const QApplication application(argc, argv);
  plotsmith::test::MakeHands = HandsOnWindows;
  return RUN_ALL_TESTS();
}
