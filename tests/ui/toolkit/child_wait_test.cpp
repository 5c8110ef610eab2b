// Waiting for a child process: deaf, but alive.
#include "ui/toolkit/child_wait.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "fakes/stage.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/text_box.h"
#include "ui/toolkit/timer.h"
#include "ui/toolkit/window.h"

namespace zarvo {
namespace {

class ChildWaitTest : public testing::Test {
 protected:
  ChildWaitTest() {
    window.SetWidth(3000);
    window.SetHeight(1500);
    label.SetPlace({.left = 0, .top = 0, .width = 1500, .height = 1500});
    other.SetPlace({.left = 1500, .top = 0, .width = 750, .height = 1500});
    text.SetPlace({.left = 2250, .top = 0, .width = 750, .height = 300});
    window.ShowModeless();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    text.setFocus();
  }

  // Tells how the child ended.
  std::string Run(const char* program, std::vector<std::string> arguments, const QString& where) {
    const RunOutcome end = runner.Run(
        {.program = program, .arguments = std::move(arguments), .folder = where.toStdString()});
    if (!end.started) return "not started";
    return end.crashed ? "crashed" : "exit " + std::to_string(end.exit_code);
  }
  std::string RunShell(const std::string& script) {
    return Run("/bin/sh", {"-c", script, "sh", "a b", "", "\"x"}, folder.path());
  }
  // A child that ends when the test has made the file "gate".
  void RunUntilGate(const std::function<void()>& meanwhile) {
    QTimer::singleShot(0, qApp, [this, meanwhile] {
      EXPECT_TRUE(ChildIsRunning());
      meanwhile();
      QFile(folder.filePath(QStringLiteral("gate"))).open(QIODevice::WriteOnly);
    });
    RunShell("while [ ! -e gate ]; do sleep 0.01; done");
  }

  QTemporaryDir folder;
  Window window{WindowFrame::kNone, "frmTest"};
  Label label{&window};
  Label other{&window};
  TextBox text{&window};
  WaitingRunner runner;
  EventLog log;
};

TEST_F(ChildWaitTest, TellsHowTheChildEnded) {
  EXPECT_EQ(RunShell("exit 0"), "exit 0");
  EXPECT_EQ(RunShell("exit 7"), "exit 7");
  EXPECT_EQ(RunShell("kill -9 $$"), "crashed");
  EXPECT_EQ(Run("/no/such/program", {}, folder.path()), "not started");
  EXPECT_EQ(Run("/bin/true", {}, QStringLiteral("/no/such/folder")), "not started");
  EXPECT_FALSE(ChildIsRunning());
}

TEST_F(ChildWaitTest, GivesTheChildItsArgumentsAndFolder) {
  RunShell(R"(printf '%s|' "$@" >out; pwd >>out)");
  QFile file(folder.filePath(QStringLiteral("out")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "a b||\"x|" + folder.path().toUtf8() + "\n");
}

TEST_F(ChildWaitTest, WhatThePlayerDoesMeanwhileIsLost) {
  log.Note(label.MouseDown, "down ");
  log.Note(label.MouseMove, "move ");
  log.Note(label.Click, "click ");
  log.Note(text.KeyDown, "key ");
  log.Note(window.MouseMove, "window ");
  RunUntilGate([this] {
    ClickOn(&label);
    MoveTo(&window, {110, 90});
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    // Posted, as events are that come in at the very end.
    QApplication::postEvent(
        &text, new QKeyEvent(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, QStringLiteral("b")));
  });
  QCoreApplication::processEvents();
  EXPECT_EQ(log(), "");
  EXPECT_EQ(text.Text(), "");
  ClickOn(&label);
  EXPECT_EQ(log(), "move down click ") << "all is as before";
}

// The child is started by a press whose release comes while it runs.
TEST_F(ChildWaitTest, AButtonLetGoMeanwhileIsNotHeldAfterwards) {
  MoveTo(&label);
  label.MouseDown.Connect([this](const MouseArgs&) { RunUntilGate([this] { Release(&label); }); });
  log.Note(other.MouseMove, "other ");
  log.Note(label.MouseMove, "label ");
  log.Note(label.Click, "click ");
  Press(&label);
  MoveTo(&other);
  EXPECT_EQ(log(), "other ");
}

TEST_F(ChildWaitTest, ARequestToCloseIsRefused) {
  log.Note(window.Unload, "unload ");
  RunUntilGate([this] {
    window.close();
    QApplication::closeAllWindows();
    EXPECT_TRUE(window.isVisible());
  });
  EXPECT_EQ(log(), "");
  EXPECT_FALSE(window.IsUnloaded());
  window.close();
  EXPECT_EQ(log(), "unload ");
}

TEST_F(ChildWaitTest, TimersStandStill) {
  Timer timer;
  int ticks = 0;
  timer.Tick.Connect([&] { ++ticks; });
  timer.SetInterval(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }));
  ticks = 0;
  RunUntilGate([&] {
    int beats = 0;  // of a bare timer, to know that time went by
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, &beat, [&] { ++beats; });
    beat.start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return beats > 20; }));
  });
  EXPECT_EQ(ticks, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; })) << "and they go on afterwards";
}

}  // namespace
}  // namespace zarvo
