#include <gmock/gmock.h>

#include <new>

#include "model/grid_rows.h"
#include "platform/fault.h"
#include "print/print_form.h"
#include "support/rig.h"

namespace {

using testing::IsEmpty;

struct Printing : testing::Test, support::Rig {
  forms::ImprimerTQ1& form = screens.print;
  print::PrintForm logic{context};

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
  const struct {
    int rows, announced;
    std::vector<std::size_t> pages;  // rows on each
  } cases[]{{0, 0, {}},       {1, 1, {1}},       {34, 1, {34}},
            {35, 1, {35, 1}}, {69, 2, {35, 34}}, {70, 2, {35, 35, 1}}};
  for (const auto& row : cases) {
    openWith(row.rows);
    const std::string announced = std::to_string(row.announced) + " page(s) à Imprimer";
    EXPECT_EQ(form.MyFrame1.caption.get(), row.announced == 0 ? "" : announced) << row.rows;
    form.MyButton1.click();
    std::vector<std::size_t> printed;
    for (const auto& page : printer.pages) printed.push_back(page.rows.size());
    EXPECT_EQ(printed, row.pages) << row.rows;
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(form.Grid.rowCount(), 0);
  }
  EXPECT_EQ(printer.pages.front().rows.front().height, 600);
  EXPECT_EQ(printer.pages.back().rows.front().height, 315);
  EXPECT_THAT(printer.calls, testing::Contains(testing::EndsWith(" Page (3/3)")));
}

TEST_F(Printing, TellsOnlyThatMemoryRanOut) {
  const std::pair<std::function<void()>, std::size_t> cases[]{{[] { throw platform::OutOfMemory(); }, 1},
                                                              {[] { throw std::bad_alloc(); }, 1},
                                                              {[] { throw platform::Fault("papier"); }, 0}};
  for (const auto& [fault, messages] : cases) {
    dialogs.messages.clear();
    openWith(70);
    printer.onPicture = fault;
    form.Command1.click();
    ASSERT_EQ(dialogs.messages.size(), messages);
    EXPECT_EQ(form.Grid.rowCount(), 0);
    EXPECT_THAT(printer.pages, IsEmpty());
    EXPECT_EQ(printer.calls.back(), "kill");
    if (messages == 0) continue;
    EXPECT_EQ(dialogs.messages[0].title, "Dépassement de Capacité...");
    EXPECT_EQ(dialogs.messages[0].text,
              "Cette Sélection est trop volumineuse (3 pages) pour l'envoyer à l'Impression...");
  }
}

}  // namespace
