#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>

#include "model/grid_rows.h"
#include "platform/fault.h"
#include "print/print_form.h"
#include "support/rig.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Printing : testing::Test, support::Rig {
  forms::ImprimerTQ1& form = screens.print;
  print::PrintForm logic{tools};

  void openWith(int rows) {
    platform::Grid& list = screens.editor.ListView1;
    list.clearRows();
    list.clearColumns();
    for (platform::GridColumn& column : model::gridColumns(false)) list.addColumn(std::move(column));
    if (rows > 0) list.addRow(model::firstRow());
    for (int row = 2; row <= rows; ++row) {
      list.addRow(model::loadedRow(row, "Séance", {"Plat", "90", "Grand", "17", "00:05:00", "-----", "130"}));
    }
    printer.calls.clear();
    printer.pages.clear();
    screens.editor.Command35.click();
    advance(10);
  }
};

TEST_F(Printing, CountsPagesOneWayAndPrintsThemAnother) {
  struct Case {
    int rows;
    const char* announced;
    std::vector<std::size_t> pages;  // rows on each
  };
  for (const Case& row : {Case{0, "", {}},
                          {1, "1 page(s) à Imprimer", {1}},
                          {34, "1 page(s) à Imprimer", {34}},
                          {35, "1 page(s) à Imprimer", {35, 1}},
                          {69, "2 page(s) à Imprimer", {35, 34}},
                          {70, "2 page(s) à Imprimer", {35, 35, 1}}}) {
    openWith(row.rows);
    EXPECT_EQ(form.MyFrame1.caption.get(), row.announced) << row.rows;
    form.MyButton1.click();
    std::vector<std::size_t> printed;
    for (const auto& page : printer.pages) printed.push_back(page.rows.size());
    EXPECT_EQ(printed, row.pages) << row.rows;
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(form.Grid.rowCount(), 0);
  }
}

TEST_F(Printing, ShiftsNumbersByARowAndLeavesTheCycleOut) {
  openWith(3);
  ASSERT_EQ(form.Grid.columnCount(), 12);
  std::vector<std::string> numbers;
  for (int row = 1; row <= 3; ++row) numbers.push_back(form.Grid.text(row, 1));
  EXPECT_THAT(numbers, ElementsAre(" ", screens.editor.ListView1.text(1, 1), "2"));
  EXPECT_EQ(form.Grid.text(2, 2), "Séance");
  EXPECT_EQ(form.Grid.text(2, 12), "130");
}

TEST_F(Printing, TellsThePrinterInOrder) {
  struct Case {
    bool colour;
    const char* mode;
  };
  for (const Case& row : {Case{true, "colour 2"}, {false, "colour 1"}}) {
    openWith(35);
    if (!row.colour) form.Option2.value = true;
    EXPECT_EQ(form.Option1.value.get(), row.colour);
    form.MyButton1.click();
    EXPECT_THAT(
        printer.calls,
        ElementsAre("orientation 2", row.mode, "A4", "high", "picture 0 0",
                    testing::MatchesRegex("Edité Le\\(16/11/2026\\) à \\(07:00:00\\) Page \\(1/2\\)"), "end",
                    "orientation 2", row.mode, "A4", "high", "picture 0 0", testing::_, "end", "finish"));
    const platform::PageGrid& page = printer.pages.front();
    EXPECT_EQ(page.columns.at(1).head, "Le Nom de la Séance");
    EXPECT_EQ(page.rows.at(0).height, 600);
    EXPECT_EQ(page.rows.at(1).height, 315);
  }
}

TEST_F(Printing, CancelsByEitherButton) {
  for (platform::Button* button : {&form.MyButton2, &form.Command34}) {
    openWith(3);
    button->click();
    EXPECT_THAT(printer.calls, ElementsAre("kill"));
    EXPECT_FALSE(form.loaded());
  }
}

TEST_F(Printing, TellsOnlyThatMemoryRanOut) {
  struct Case {
    std::function<void()> fault;
    std::size_t messages;
  };
  for (const Case& row : {Case{[] { throw platform::OutOfMemory(); }, 1},
                          {[] { throw std::bad_alloc(); }, 1},
                          {[] { throw platform::Fault("papier"); }, 0}}) {
    dialogs.messages.clear();
    openWith(70);
    printer.onPicture = row.fault;
    form.Command1.click();
    ASSERT_EQ(dialogs.messages.size(), row.messages);
    EXPECT_EQ(form.Grid.rowCount(), 0);
    EXPECT_THAT(printer.pages, IsEmpty());
    if (row.messages == 0) continue;
    EXPECT_EQ(dialogs.messages[0].title, "Dépassement de Capacité...");
    EXPECT_EQ(dialogs.messages[0].text,
              "Cette Sélection est trop volumineuse (3 pages) pour l'envoyer à l'Impression...");
  }
}

TEST_F(Printing, OpensAsNewEachTime) {
  openWith(3);
  form.Option2.value = true;
  form.MyButton1.click();
  openWith(3);
  EXPECT_TRUE(form.Option1.value && !form.Option2.value && form.MyButton2.visible &&
              !form.ProgressBar1.visible);
}

}  // namespace
