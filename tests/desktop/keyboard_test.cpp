// From the launch to the end of a ride without a mouse: a session composed, saved and ridden by keys alone.
#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include "desktop/windows.h"
#include "support/simulated_program.h"

namespace {

class KeyboardTest : public testing::Test {
 protected:
  KeyboardTest() {
    EXPECT_TRUE(program_.start());
    windows_.emplace(program_.program(), desktop::ThemeMode::Dark);
    windows_->window().show();
    windows_->window().activateWindow();
    settle();
  }
  void settle() {
    windows_->refresh();
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    // A platform without a screen gives the keyboard back to nobody when a list closes.
    if (QApplication::activePopupWidget() == nullptr && QApplication::focusWidget() == nullptr) {
      windows_->window().activateWindow();
      QCoreApplication::processEvents();
    }
  }
  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* target = popup != nullptr ? popup->focusWidget() : QApplication::focusWidget();
    if (target == nullptr) target = popup;
    QTest::keyClick(target != nullptr ? target : &windows_->window(), code, modifiers);
    settle();
  }
  [[nodiscard]] static QString focused() {
    const QWidget* widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName() : QString();
  }
  // Goes there from control to control.
  void tabTo(const char* name) {
    for (int i = 0; i < 60 && focused() != QLatin1String(name); ++i) key(Qt::Key_Tab);
    EXPECT_EQ(focused(), name);
  }
  // Opens the cell in hand and takes the entry so many lines below the first.
  void choose(int line) {
    key(Qt::Key_F2);
    key(Qt::Key_Home);
    for (int i = 0; i < line; ++i) key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "ListView1");
  }
  void composeARow() {
    tabTo("MyButton1");
    key(Qt::Key_Space);
    tabTo("ListView1");
    key(Qt::Key_End);
    for (int column = 0; column < 4; ++column) {
      choose(1);
      key(Qt::Key_Right);
    }
    key(Qt::Key_Right);  // over what repeats the session
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "Combo2");
    tabTo("Combo4");
    for (int i = 0; i < 20; ++i) key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "ListView1");
  }

  support::SimulatedProgram program_;
  forms::Screens& screens_ = program_.screens();
  std::optional<desktop::Windows> windows_;
};

TEST_F(KeyboardTest, ASessionIsComposedSavedAndRidden) {
  tabTo("MyButton5");
  key(Qt::Key_Return);
  ASSERT_TRUE(screens_.editor.visible);
  composeARow();
  ASSERT_EQ(program_.list().rowCount(), 2);
  const std::string duration = program_.list().text(2, 10);
  EXPECT_EQ(duration, "00:00:20");
  program_.run("advance 1.5");
  settle();
  program_.run("answer A la main");
  key(Qt::Key_S, Qt::ControlModifier);
  ASSERT_TRUE(program_.memory.exists("/d/chronodat/A la main.tq2"));

  program_.run("answer /d/chronodat/A la main.tq2");
  key(Qt::Key_O, Qt::ControlModifier);
  program_.run("advance 1.5");
  settle();
  key(Qt::Key_F5);
  program_.run("advance 0.3");
  settle();
  ASSERT_TRUE(screens_.main.MyFrame2.visible);
  tabTo("MyButton3");
  key(Qt::Key_Space);
  program_.run("advance 10");
  key(Qt::Key_Space);
  const std::string held = screens_.main.Label6.caption;
  program_.run("advance 60");
  EXPECT_EQ(screens_.main.Label6.caption, held);
  EXPECT_EQ(screens_.main.MyButton1.caption, "Stop");
  key(Qt::Key_Space);
  program_.run("advance 60");
  EXPECT_EQ(screens_.main.MyButton1.caption, "Start");
}

TEST_F(KeyboardTest, DeleteAsksBeforeItTakesALineAway) {
  tabTo("MyButton5");
  key(Qt::Key_Space);
  composeARow();
  EXPECT_FALSE(screens_.editor.mnSupprimer.enabled);
  key(Qt::Key_Delete);
  EXPECT_TRUE(screens_.editor.mnSupprimer.enabled);
  EXPECT_EQ(program_.list().rowCount(), 2);
  program_.run("advance 1\npress CreerCycle.mnsupprim\nadvance 1");
  EXPECT_EQ(program_.list().rowCount(), 1);
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program_.list().rowCount(), 2);
}

}  // namespace
