#include "console/direct_hands.h"

#include <algorithm>

namespace console {

using platform::CheckBox;
using platform::ComboBox;
using platform::FileList;
using platform::Option;
using platform::TextBox;

void DirectHands::press(platform::Component& target) {
  if (auto* entry = dynamic_cast<platform::MenuItem*>(&target)) {
    entry->click();
  } else if (auto* box = dynamic_cast<CheckBox*>(&target)) {
    box->toggle();
  } else if (auto* option = dynamic_cast<Option*>(&target)) {
    option->value = true;
  } else if (auto* control = dynamic_cast<platform::Control*>(&target)) {
    control->click();
  }
}

void DirectHands::doublePress(platform::Control& target) {
  press(target);  // a double click is a click first
  target.doubleClick();
}

void DirectHands::hover(platform::Control& target) {
  target.hover();
}

void DirectHands::tick(platform::Control& box, int value) {
  if (auto* check = dynamic_cast<CheckBox*>(&box)) check->value = value;
  if (auto* option = dynamic_cast<Option*>(&box)) option->value = value != 0;
}

void DirectHands::pick(platform::Control& list, int line) {
  if (auto* combo = dynamic_cast<ComboBox*>(&list)) combo->pick(line);
  if (auto* files = dynamic_cast<FileList*>(&list)) {
    files->index = line;
    files->click();
  }
}

void DirectHands::type(platform::Control& box, const std::string& text) {
  if (auto* combo = dynamic_cast<ComboBox*>(&box)) {
    combo->type(text);
    combo->enter();
  }
  if (auto* field = dynamic_cast<TextBox*>(&box)) {
    field->text = text;
    field->enter();
  }
}

void DirectHands::scroll(platform::ScrollBar& bar, int value) {
  bar.scrollTo(value);
}

void DirectHands::cell(platform::Grid& grid, int row, int column, platform::MouseButton button) {
  grid.pressAt(row, column, button);
}

void DirectHands::hoverCell(platform::Grid& grid, int row, int column) {
  grid.pointAt(row, column);
}

void DirectHands::checkRow(platform::Grid& grid, int row, bool on) {
  grid.tickRow(row, on);
}

void DirectHands::select(platform::Grid& grid, const std::vector<int>& rows) {
  if (rows.size() == 1) return grid.select(rows.front());
  grid.selectRows(rows, rows.back());
}

void DirectHands::key(platform::Control& target, const std::string& key) {
  if (auto* grid = dynamic_cast<platform::Grid*>(&target)) {
    const int step = key == "Shift+Up" ? -1 : key == "Shift+Down" ? 1 : 0;
    if (step == 0) return grid->keyPressed(key);
    return grid->extendSelection(std::clamp(grid->selectedRow() + step, 1, grid->rowCount()));
  }
  if (auto* files = dynamic_cast<FileList*>(&target)) {
    files->key(key);
    return;
  }
  if (key != "Enter") return;
  if (auto* combo = dynamic_cast<ComboBox*>(&target)) combo->enter();
  if (auto* field = dynamic_cast<TextBox*>(&target)) field->enter();
  if (auto* button = dynamic_cast<platform::Button*>(&target)) button->click();
}

void DirectHands::leave(platform::ComboBox& box) {
  box.validate();
}

}  // namespace console
