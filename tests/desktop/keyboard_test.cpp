// From the launch to the end of a ride without a mouse: a session composed, saved and ridden by keys alone.
#include <gmock/gmock.h>

#include <QMenu>

#include "desktop/windows_test_base.h"

namespace {

class KeyboardTest : public WindowsTestBase {
 protected:
  KeyboardTest() {
    windows_->window().activateWindow();
    settle();
  }
  void settle() {
    WindowsTestBase::settle();
    for (int i = 0; i < 2; ++i) QCoreApplication::processEvents();
    // Without a screen Qt leaves the keyboard with no widget when a drop-down list closes.
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
  // Goes to a control by the Tab key.
  void tabTo(const char* name) {
    for (int i = 0; i < 60 && focused() != QLatin1String(name); ++i) key(Qt::Key_Tab);
    EXPECT_EQ(focused(), name);
  }
  // Opens the current cell and chooses the entry `line` lines below the first.
  void choose(int line) {
    key(Qt::Key_F2);
    key(Qt::Key_Home);
    for (int i = 0; i < line; ++i) key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "ListView1");
  }
  void openEditor() {
    tabTo("MyButton5");
    key(Qt::Key_Return);
    ASSERT_TRUE(screens_.editor.visible);
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
    key(Qt::Key_Right);  // passes the columns for repeats
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "Combo2");
    tabTo("Combo4");
    key(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), '9');
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "ListView1");
  }
};

TEST_F(KeyboardTest, ASessionIsComposedSavedAndRidden) {
  openEditor();
  composeARow();
  ASSERT_EQ(program_.list().rowCount(), 2);
  const std::string duration = program_.list().text(2, 10);
  EXPECT_EQ(duration, "00:00:09");
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

TEST_F(KeyboardTest, EnterOpensAMenuOnItsFirstEntry) {
  openEditor();
  tabTo("mnMenu");
  key(Qt::Key_Return);
  const auto* menu = qobject_cast<const QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_NE(menu->activeAction(), nullptr);
  key(Qt::Key_Escape);
}

TEST_F(KeyboardTest, AButtonThatIsClosedInUseTakesTheKeyboardBack) {
  forms::MainForm& main = screens_.main;
  main.Command7.enabled = true;
  main.MyButton4.enabled = true;
  for (const bool touched : {false, true}) {
    widget<QWidget>(main, "Command7").setFocus();
    main.Command7.enabled = false;
    settle();
    EXPECT_EQ(QApplication::focusWidget(), windows_->page(main)) << "none that a key would press";
    if (touched) widget<QWidget>(main, "MyButton4").setFocus();
    main.Command7.enabled = true;
    settle();
    EXPECT_EQ(focused(), touched ? "MyButton4" : "Command7");
  }
}

TEST_F(KeyboardTest, ThePlayButtonOfAnAnnouncementHandsOnToTheListeningLevel) {
  program_.run("press MainForm.mnEnrAnnVocale");
  settle();
  tabTo("Command7");
  key(Qt::Key_Space);
  EXPECT_EQ(focused(), "VScroll1");
}

TEST_F(KeyboardTest, DeleteAsksBeforeItTakesALineAway) {
  openEditor();
  composeARow();
  const std::string kind = program_.list().text(2, 4);
  key(Qt::Key_Home);
  key(Qt::Key_Down);
  key(Qt::Key_F2);
  QTest::keyClick(QApplication::focusWidget(), '7');  // is dropped by Escape
  for (int i = 0; i < 2; ++i) key(Qt::Key_Escape);    // closes the list, then the cell
  EXPECT_EQ(focused(), "ListView1");
  EXPECT_FALSE(screens_.editor.Combo1.visible || screens_.editor.Picture2.visible);
  EXPECT_EQ(program_.list().text(2, 4), kind);
  EXPECT_EQ(program_.list().text(2, 10), "00:00:09");

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
