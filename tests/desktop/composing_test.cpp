// A session composed by the keyboard alone, each press counted, and rows selected and dragged by the mouse.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QTimer>

#include "desktop/qt_dialogs.h"
#include "desktop/windows_test_base.h"
#include "model/grid_rows.h"
#include "rehearsal/devices.h"
#include "widgets/grid_table.h"

namespace {

namespace column = model::column;

void serve() {
  for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
}

// The program with its real questions, which are answered by keys, too.
class ComposingTest : public testing::Test {
 protected:
  ComposingTest() {
    memory_.put("/d/par.tq3", support::settingsOff);
    devices_.sound.attach(program_.loop());
    EXPECT_TRUE(program_.start());
    windows_.emplace(program_, widgets::ThemeMode::Dark);
    windows_->window().show();
    program_.loop().guard([this] { program_.screens().main.mnCreat.click(); });
    windows_->window().activateWindow();
    settle();
    table_ = windows_->page(program_.screens().editor)->findChild<widgets::GridTable*>("ListView1");
    table_->setFocus();
  }
  void settle() {
    windows_->refresh();
    serve();
    program_.loop().runUntil(clock_.now() + std::chrono::milliseconds(20));
    if (QApplication::activePopupWidget() == nullptr && QApplication::focusWidget() == nullptr) {
      windows_->window().activateWindow();
      serve();
    }
  }
  void press(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    ++presses_;
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* target = popup != nullptr ? popup->focusWidget() : QApplication::focusWidget();
    ASSERT_NE(target, nullptr);
    QTest::keyClick(target, static_cast<Qt::Key>(key), held);
    settle();
  }
  void type(const char* keys) {
    for (; *keys != '\0'; ++keys) {
      ++presses_;
      QWidget* popup = QApplication::activePopupWidget();
      QTest::keyClick(popup != nullptr ? popup->focusWidget() : QApplication::focusWidget(), *keys);
      settle();
    }
  }
  std::string row(int number) {
    const platform::Grid& grid = program_.screens().editor.ListView1;
    return grid.text(number, column::sequence) + " " + grid.text(number, column::duration);
  }

  rehearsal::SimulatedClock clock_{platform::LocalTime{std::chrono::days(20000)}};
  rehearsal::MemoryFileSystem memory_;
  rehearsal::Devices devices_{clock_, memory_, "/d", rehearsal::SoundMode::Instant};
  desktop::QtDialogs dialogs_{[]() -> QWidget* { return nullptr; }};
  app::Program program_{
      {clock_, devices_.sound, dialogs_, memory_, devices_.screenSaver, devices_.journaledMedia,
       devices_.level, devices_.shell, devices_.volume, devices_.printer, devices_.clipboard},
      {"/d", "1.0.0", {}}};
  std::optional<desktop::Windows> windows_;
  widgets::GridTable* table_ = nullptr;
  int presses_ = 0;
};

// Ten times thirty seconds fast and thirty slow, with a warm-up and a spin-down.
TEST_F(ComposingTest, ASeriesTakesFewerThanTwentyFivePresses) {
  const platform::Grid& grid = program_.screens().editor.ListView1;
  press(Qt::Key_Down);
  type("e500");
  press(Qt::Key_Return, Qt::ControlModifier);
  type("s30");
  press(Qt::Key_Return, Qt::ControlModifier);
  type("r");
  press(Qt::Key_Up, Qt::ShiftModifier);
  QTimer::singleShot(0, [this] {
    for (const int key : {Qt::Key_1, Qt::Key_0, Qt::Key_Return}) {
      ++presses_;
      QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), static_cast<Qt::Key>(key));
    }
  });
  press(Qt::Key_R, Qt::ControlModifier);
  press(Qt::Key_Return, Qt::ControlModifier);
  type("ret500");
  press(Qt::Key_Return);

  ASSERT_EQ(grid.rowCount(), 23);
  EXPECT_EQ(row(2), "Echauffement 00:05:00");
  for (int fast = 3; fast < 23; fast += 2) {
    EXPECT_EQ(row(fast), "Sprint 00:00:30");
    EXPECT_EQ(row(fast + 1), fast < 22 ? "Récupération 00:00:30" : row(22)) << fast;
  }
  EXPECT_EQ(row(23), "Retour au Calme 00:05:00");
  EXPECT_EQ(grid.text(1, column::duration), "00:20:00");
  EXPECT_LT(presses_, 25);
}

class RowHandsTest : public WindowsTestBase {
 protected:
  RowHandsTest() {
    program_.run(
        "press MainForm.mnCreat\nselect CreerCycle.ListView1 2\nclipboard Assis\\t\\t\\t\\t0:01:00\\nSprint\\t97\\t"
        "\\t\\t0:00:30\\nAnnonce Vocale\\nForce\\t\\t\\t\\t0:00:20\\nRepos\\t\\t\\t\\t0:00:10\npress CreerCycle.mnPasteRows\n"
        "select CreerCycle.ListView1 3");
    windows_->window().activateWindow();
    settle();
    table_.setFocus();
  }
  void click(int row, int col, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::mouseClick(table_.viewport(), Qt::LeftButton, held, table_.cellRect(row, col).center());
    serve();
  }
  void drag(int from, int to, bool lowerHalf) {
    const QPoint start = table_.cellRect(from, column::gear).center();
    const QRect end = table_.cellRect(to, column::gear);
    QTest::mousePress(table_.viewport(), Qt::LeftButton, {}, start);
    for (const QPoint& at : {start + QPoint(1, 2), end.center(),
                             QPoint(end.center().x(), lowerHalf ? end.bottom() - 2 : end.top() + 2)}) {
      QMouseEvent move(QEvent::MouseMove, at, table_.viewport()->mapToGlobal(at), Qt::NoButton,
                       Qt::LeftButton, {});
      QApplication::sendEvent(table_.viewport(), &move);
    }
  }
  void drop() {
    QTest::mouseRelease(table_.viewport(), Qt::LeftButton);
    settle();
  }
  void keys(const char* typed) {
    for (; *typed != '\0'; ++typed) {
      QWidget* popup = QApplication::activePopupWidget();
      QTest::keyClick(popup != nullptr ? popup->focusWidget() : &table_, *typed);
    }
  }
  void key(Qt::Key code, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup->focusWidget() : QApplication::focusWidget(), code, held);
    settle();
    // Without a screen the keyboard does not come back from a list by itself.
    if (QApplication::activePopupWidget() == nullptr) windows_->window().activateWindow();
    serve();
  }
  std::string kinds() {
    std::string all;
    for (int row = 2; row <= grid_.rowCount(); ++row)
      all += grid_.text(row, column::sequence).substr(0, 2) + " ";
    return all;
  }

  forms::CreerCycle& form_ = screens_.editor;
  platform::Grid& grid_ = form_.ListView1;
  widgets::GridTable& table_ = widget<widgets::GridTable>(form_, "ListView1");
};

TEST_F(RowHandsTest, MouseAndKeysSelectWhatScreenReadersAreTold) {
  using Rows = std::vector<int>;
  click(2, column::cadence);
  EXPECT_TRUE(form_.Combo1.visible);
  click(4, column::cadence, Qt::ShiftModifier);
  click(6, column::cadence, Qt::ControlModifier);
  EXPECT_EQ(grid_.selectedRows(), (Rows{2, 3, 4, 6}));
  settle();
  auto* face = QAccessible::queryAccessibleInterface(&table_)->tableInterface();
  EXPECT_EQ(face->selectedRowCount(), 4);
  click(3, column::cadence);  // a click on one of them is a click
  EXPECT_EQ(grid_.selectedRows(), Rows{3});
  EXPECT_TRUE(form_.Combo1.visible);
  key(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(grid_.selectedRows(), (Rows{3, 4, 5, 6}));
  key(Qt::Key_Up, Qt::ControlModifier);
  key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(grid_.selectedRows(), (Rows{3, 4, 6}));
  key(Qt::Key_Down);
  EXPECT_EQ(grid_.selectedRows(), Rows{6});
}

TEST_F(RowHandsTest, RowsGoWhereTheyAreDragged) {
  drag(2, 4, true);
  drop();
  EXPECT_EQ(kinds(), "Sp An As Fo Re ");
  EXPECT_FALSE(form_.Combo1.visible);
  click(2, column::cadence);
  click(3, column::cadence, Qt::ControlModifier);
  drag(3, 6, true);
  drop();
  EXPECT_EQ(kinds(), "As Fo Re Sp An ");
  drag(6, 1, false);
  drop();
  EXPECT_EQ(kinds(), "Sp An As Fo Re ") << "none goes before the first row";
  drag(1, 4, false);
  drop();
  drag(3, 5, false);
  key(Qt::Key_Escape);
  drop();
  EXPECT_EQ(kinds(), "Sp An As Fo Re ");
}

TEST_F(RowHandsTest, TypingFindsValuesAndTabPassesCellsWithoutMeaning) {
  keys("rec");  // no accent needed
  key(Qt::Key_Tab);
  EXPECT_EQ(grid_.text(3, column::sequence), "Récupération");
  EXPECT_EQ(table_.pressedColumn(), column::cadence);
  keys("97");  // in no list
  key(Qt::Key_Return);
  EXPECT_EQ(grid_.text(3, column::cadence), "97");
  key(Qt::Key_Tab);
  keys("gx");
  key(Qt::Key_Backspace);
  key(Qt::Key_Tab);
  EXPECT_EQ(grid_.text(3, column::chainring), "Grand Plateau");
  key(Qt::Key_Tab);
  EXPECT_EQ(table_.pressedColumn(), column::duration);
  keys("12345");
  key(Qt::Key_Backspace);
  key(Qt::Key_Tab);
  EXPECT_EQ(grid_.text(3, column::duration), "00:12:34");
  EXPECT_EQ(table_.pressedColumn(), column::heartRate);
  key(Qt::Key_Tab, Qt::ShiftModifier);
  keys("5");
  key(Qt::Key_Escape);
  EXPECT_EQ(grid_.text(3, column::duration), "00:12:34");
  EXPECT_FALSE(form_.Picture2.visible);
  keys("5");
  key(Qt::Key_Down);
  program_.run("advance 0.1");
  EXPECT_EQ(grid_.text(3, column::duration), "00:00:05") << "leaving the row keeps it";

  table_.goToColumn(column::sequence);
  key(Qt::Key_Tab);
  EXPECT_EQ(table_.pressedColumn(), column::announcement);
  key(Qt::Key_Tab);
  EXPECT_FALSE(table_.hasFocus()) << "behind the last cell the keyboard goes on";
}

}  // namespace
