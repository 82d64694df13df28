// The list of sequences: mouse, wheel and keys, its cell editors, and many rows at once.
#include <gmock/gmock.h>

#include <QComboBox>
#include <QWheelEvent>

#include "desktop/windows_test_base.h"
#include "model/grid_rows.h"
#include "model/training_model.h"
#include "widgets/grid_table.h"
#include "widgets/qt_text.h"

namespace {

namespace column = model::column;

class ListTest : public WindowsTestBase {
 protected:
  ListTest() {
    program_.run("press MainForm.mnCreat");
    const std::string padded = "allez.wav" + std::string(41, ' ');
    for (int row = 2; row <= 200; ++row) {
      const bool spoken = row == 3;
      grid_.addRow(model::loadedRow(row, "Col",
                                    {spoken ? "Annonce Vocale" : "Plat", "60", "53", "17",
                                     spoken ? "-----" : "00:01:00", padded, "000"}));
    }
    grid_.removeRow(2);
    program_.memory.put("/d/annonces/allez.wav", "");
    windows_->window().activateWindow();
    settle();
  }
  void click(int row, int col, Qt::MouseButton button = Qt::LeftButton) {
    table_.scrollTo(table_.gridModel()->index(row - 1, col - 1));
    QTest::mouseClick(table_.viewport(), button, {}, table_.cellRect(row, col).center());
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    settle();
  }
  [[nodiscard]] bool inSight(int row) const {
    return table_.viewport()->rect().contains(table_.cellRect(row, column::sequence));
  }
  static void roll(QWidget& over) {
    const QPointF at = over.rect().center();
    QWheelEvent notch(at, over.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &notch);
  }

  forms::CreerCycle& form_ = screens_.editor;
  platform::Grid& grid_ = form_.ListView1;
  widgets::GridTable& table_ = widget<widgets::GridTable>(form_, "ListView1");
  QComboBox& box_ = widget<QComboBox>(form_, "Combo1");
};

TEST_F(ListTest, AWheelOverAClosedBoxChangesNothingButTheViewOfTheList) {
  for (const platform::Form* form : screens_.all()) {
    if (windows_->page(*form) == nullptr) continue;
    for (QComboBox* box : windows_->page(*form)->findChildren<QComboBox*>()) {
      auto& control = dynamic_cast<platform::ComboBox&>(form->find(widgets::fromQt(box->objectName())));
      if (control.lines().empty()) control.setLines({"1", "2", "3"});
      control.index = 1;
      roll(*box);
      EXPECT_EQ(control.index, 1) << form->name() << '.' << control.name();
      EXPECT_FALSE(box->focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus) << control.name();
    }
  }
  table_.scrollToTop();
  for (const auto& [row, col, over] : {std::tuple{2, 5, "Combo1"}, {2, 10, "Picture2"}, {1, 13, "Combo13"}}) {
    click(row, col);
    roll(widget<QWidget>(form_, over));
    EXPECT_FALSE(inSight(1)) << over;
    program_.run("advance 0.02");
    EXPECT_FALSE(dynamic_cast<platform::Control&>(form_.find(over)).visible)
        << over << " stays without its row";
  }
}

TEST_F(ListTest, TheRowInHandStaysInSightWithTheKeyboard) {
  click(100, column::deleteMark, Qt::RightButton);
  form_.mnAjouterLigne.click();
  settle();
  EXPECT_EQ(grid_.text(101, column::sequence), model::emptyCell);
  for (const int row : {101, 100, 199, 150}) {
    settle();
    EXPECT_TRUE(inSight(grid_.selectedRow())) << row;
    click(row, column::deleteMark, Qt::RightButton);
    widget<QWidget>(form_, "MyButton1").setFocus();
    form_.mnsupprim.click();
    settle();
    EXPECT_EQ(grid_.selectedRow(), std::min(row, grid_.rowCount()));
    EXPECT_TRUE(inSight(grid_.selectedRow())) << row;
    EXPECT_TRUE(table_.hasFocus()) << row;
  }
}

TEST_F(ListTest, TheCellEditorLiesOverTheCellThatItWritesUntilEscape) {
  click(2, column::cadence);
  QTest::keyClick(&table_, Qt::Key_Right);
  QTest::mouseMove(table_.viewport(), table_.cellRect(4, column::gear).center());
  settle();
  EXPECT_TRUE(box_.geometry().contains(
      table_.viewport()->mapTo(box_.parentWidget(), table_.cellRect(2, column::cadence).center())));
  for (const int col : {column::cadence, column::duration}) {
    click(2, col);
    QTest::keyClick(&table_, Qt::Key_Escape);
    EXPECT_FALSE(form_.Combo1.visible || form_.Picture2.visible) << col;
  }
}

TEST_F(ListTest, AnAnnouncementIsHeardWhereItsOwnCellIsLeft) {
  EXPECT_EQ(table_.gridModel()->index(2, column::announcement - 1).data(), "allez.wav");
  click(2, column::cadence);
  box_.setFocus();
  click(3, column::announcement);
  EXPECT_FALSE(screens_.volume.visible);
  EXPECT_EQ(box_.currentText(), "allez.wav");
  box_.setFocus();
  settle();
  QTest::keyClick(&box_, Qt::Key_Tab);
  settle();
  EXPECT_TRUE(screens_.volume.visible);
  EXPECT_EQ(screens_.player.Text1.text.get(), "/d/annonces/allez.wav");
}

TEST_F(ListTest, ManyNewRowsAreOneInsertionAndOnlyWhatChangedIsRepainted) {
  widgets::GridModel& model = *table_.gridModel();
  const int before = model.rowCount();
  int insertions = 0;
  std::vector<std::pair<int, int>> changed;
  QObject::connect(&model, &QAbstractItemModel::rowsInserted, [&insertions] { ++insertions; });
  QObject::connect(&model, &QAbstractItemModel::dataChanged,
                   [&changed](const QModelIndex& a, const QModelIndex& b) {
                     changed.emplace_back(a.row() * 100 + a.column(), b.row() * 100 + b.column());
                   });
  for (int r = 0; r < 10000; ++r) grid_.addRow({"1", "2", "3", "Plat"});
  EXPECT_EQ(model.rowCount(), before);
  model.flush();
  EXPECT_EQ(model.rowCount(), before + 10000);
  EXPECT_EQ(insertions, 1);

  grid_.setText(5, 4, "Sprint");
  grid_.setText(5, 4, "Sprint");
  grid_.setStyle(7, 3, 12, {platform::Colour::rgb(255, 0, 0), true});
  model.flush();
  EXPECT_THAT(changed, testing::ElementsAre(std::pair(403, 403), std::pair(600, 612)));

  grid_.removeRow(1);
  grid_.insertRow(3, {"x"});
  model.flush();
  EXPECT_EQ(model.rowCount(), grid_.rowCount());
}

}  // namespace
