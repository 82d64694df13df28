#include <gmock/gmock.h>

#include "platform/controls.h"
#include "platform/grid.h"

namespace {

using namespace platform;
using testing::ElementsAre;

struct Sample : Form {
  Sample() : Form("Sample") { visible = true; }
  Frame outer{*this, "outer"};
  Frame inner{*this, "inner", "", {.in = &outer}};
  Button button{*this, "button", "Start", {.in = &inner}};
  CheckBox check{*this, "check"};
  Option option{*this, "option"};
  ComboBox combo{*this, "combo"};
  ScrollBar bar{*this, "bar", {100, 0}, 50};
  TextBox box{*this, "box"};
  Grid grid{*this, "grid"};
};

// Which write from code raises which event, and only on a change: the whole table at once.
TEST(ControlEvents, WritesFromCodeRaiseEventsByTheTable) {
  Sample form;
  std::vector<std::string> raised;
  const auto record = [&](const char* what) { return [&raised, what] { raised.emplace_back(what); }; };
  form.button.click.handle(record("button"));
  form.check.click.handle(record("check"));
  form.option.click.handle(record("option"));
  form.combo.click.handle(record("combo"));
  form.bar.change.handle(record("bar"));
  form.bar.scroll.handle(record("bar scrolled"));
  form.box.enter.handle(record("box"));
  form.combo.setLines({"a", "b"});
  for (int twice = 0; twice < 2; ++twice) {
    form.button.caption = "Stop";
    form.check.value = 1;
    form.option.value = true;
    form.combo.text = "a";
    form.combo.index = 1;
    form.bar.value = 20;
    form.box.text = "x";
    form.check.visible = false;
  }
  EXPECT_THAT(raised, ElementsAre("check", "option", "combo", "bar", "combo"));
  raised.clear();
  form.combo.pick(1);  // a pick by the rider raises the click even on the line already picked
  form.bar.scrollTo(1000);
  form.combo.pick(7);
  EXPECT_THAT(raised, ElementsAre("combo", "bar", "bar scrolled"));
  EXPECT_EQ(form.bar.value, 100);
}

TEST(ControlEvents, TextAndIndexOfADropDownFollowEachOther) {
  Sample form;
  form.combo.text = "b";
  form.combo.setLines({"a", "b"});
  EXPECT_EQ(form.combo.index, 1);
  form.combo.index = 0;
  EXPECT_EQ(form.combo.text, "a");
  form.combo.text = "97";
  EXPECT_EQ(form.combo.index, -1);
  form.combo.index = 1;
  form.combo.index = -1;
  EXPECT_EQ(form.combo.text, "");
}

TEST(ControlEvents, WatchersHearRealChangesAfterTheWrite) {
  Sample form;
  std::vector<std::string> heard;
  form.button.watch([&](Component& c, Prop p) {
    heard.push_back(std::string(propertyName(p)) + "=" + c.property(p)->asText());
  });
  form.button.caption = "Stop";
  form.button.caption = "Stop";
  form.button.colour = Colour::rgb(1, 2, 3);
  form.button.enabled = false;
  EXPECT_THAT(heard, ElementsAre("caption=Stop", "colour=1,2,3", "enabled=0"));
}

TEST(ControlEvents, TheRiderSeesAndReachesThroughEveryContainer) {
  Sample form;
  EXPECT_TRUE(canBeSeen(form.button) && isEnabled(form.button));
  form.outer.visible = form.outer.enabled = false;
  EXPECT_FALSE(canBeSeen(form.button) || isEnabled(form.button));
}

TEST(ControlEvents, TheGridKeepsItsSelectionOnTheRow) {
  Sample form;
  Grid& grid = form.grid;
  grid.addColumn({"A", 100});
  grid.addColumn({"B", 0});
  grid.addColumn({"C", 50});
  for (const char* name : {"one", "two", "three"}) grid.addRow({name});
  std::vector<int> clicked;
  grid.click.handle([&] { clicked.push_back(grid.selectedRow()); });
  grid.pressAt(2, 1, MouseButton::Right);
  EXPECT_TRUE(clicked.empty());
  grid.insertRow(1, {"zero", "b"});
  EXPECT_EQ(grid.text(grid.selectedRow(), 1), "two");
  grid.removeRow(1);
  EXPECT_EQ(grid.selectedRow(), 2);
  grid.pressAt(3, 1, MouseButton::Left);
  grid.pressAt(9, 1, MouseButton::Left);
  EXPECT_THAT(clicked, ElementsAre(3));
  grid.removeRow(3);
  EXPECT_EQ(grid.selectedRow(), 0);
  EXPECT_EQ(grid.columnLeft(3), 100);
  EXPECT_EQ(grid.text(0, 1) + grid.text(9, 9), "");
}

}  // namespace
