#include "console/rider_commands.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

#include "console/inspection.h"
#include "console/names.h"
#include "console/reach.h"
#include "platform/form.h"
#include "platform/text.h"

namespace console {
namespace {

using platform::ControlKind;

void require(Reach reach) {
  if (reach == Reach::Hidden) throw Refusal("hidden");
  if (reach == Reach::Disabled) throw Refusal("disabled");
}

struct CellPlace {
  int row;
  int column;
};

CellPlace cellOf(const platform::Grid& grid, Arguments& arguments) {
  const CellPlace place{arguments.number("row"), arguments.number("column")};
  if (place.row < 1 || place.row > grid.rowCount() || place.column < 1 || place.column > grid.columnCount()) {
    throw CommandError(grid.name() + " has " + std::to_string(grid.rowCount()) + " rows and " +
                       std::to_string(grid.columnCount()) + " columns");
  }
  if (grid.column(place.column).width == 0) throw Refusal("hidden");
  return place;
}

// "3", "3-7", "3,5,9-11": in their order.
std::vector<int> rowsOf(const platform::Grid& grid, const std::string& list) {
  std::set<int> rows;
  for (const std::string& part : platform::split(list, ',')) {
    const std::vector<std::string> ends = platform::split(part, '-');
    if (ends.size() > 2) throw CommandError("\"" + part + "\" is no run of rows");
    Arguments first(ends.front());
    Arguments last(ends.back());
    const int from = first.number("row");
    const int to = last.number("row");
    if (from < 1 || to > grid.rowCount() || from > to) {
      throw CommandError(grid.name() + " has no rows " + part);
    }
    for (int row = from; row <= to; ++row) rows.insert(row);
  }
  return {rows.begin(), rows.end()};
}

}  // namespace

void RiderCommands::enrol(CommandTable& table) {
  using Member = void (RiderCommands::*)(Arguments&);
  static constexpr std::array<std::pair<const char*, Member>, 12> commands{{
      {"press", &RiderCommands::press},
      {"double", &RiderCommands::doublePress},
      {"hover", &RiderCommands::hover},
      {"tick", &RiderCommands::tick},
      {"pick", &RiderCommands::pick},
      {"type", &RiderCommands::type},
      {"scroll", &RiderCommands::scroll},
      {"cell", &RiderCommands::cell},
      {"hovercell", &RiderCommands::hoverCell},
      {"checkrow", &RiderCommands::checkRow},
      {"key", &RiderCommands::key},
      {"select", &RiderCommands::select},
  }};
  for (const auto& [name, member] : commands) {
    table[name] = [this, run = member](Arguments& arguments) { (this->*run)(arguments); };
  }
}

platform::Control& RiderCommands::control(Arguments& arguments, std::string_view command,
                                          std::initializer_list<ControlKind> kinds) {
  const std::string address = arguments.word("FORM.CONTROL");
  platform::Component& found = findControl(screens_, address);
  auto* control = dynamic_cast<platform::Control*>(&found);
  const bool fits = kinds.size() == 0 || std::find(kinds.begin(), kinds.end(), found.kind()) != kinds.end();
  if (control == nullptr || !fits) {
    throw CommandError(std::string(command) + " is nothing that one does to " + address);
  }
  return *control;
}

void RiderCommands::closePopUp(const platform::Component& touched) {
  const auto* entry = dynamic_cast<const platform::MenuItem*>(&touched);
  if (entry == nullptr || &entry->root() != popUp_) popUp_ = nullptr;
}

void RiderCommands::leaveBox(const platform::Component& touched) {
  if (keyboardIn_ == nullptr || keyboardIn_ == &touched) return;
  platform::ComboBox& left = *keyboardIn_;
  keyboardIn_ = nullptr;
  loop_.guard([&] { hands_.leave(left); });
}

void RiderCommands::reach(const platform::Component& target) {
  if (loop_.quitting()) throw Refusal("hidden");  // the program has ended, and its windows with it
  closePopUp(target);
  require(reachOf(target, popUp_));
}

// A fault in a handler ends there and is told to the rider; hands that find nothing to touch are an error.
void RiderCommands::act(const Action& action) {
  std::optional<CommandError> error;
  loop_.guard([&] {
    try {
      action();
    } catch (const CommandError& missed) {
      error = missed;
    }
  });
  if (error) throw *error;
}

void RiderCommands::point(const platform::Component& target, const Action& action) {
  reach(target);
  act(action);
}

void RiderCommands::touch(const platform::Component& target, const Action& action) {
  reach(target);
  leaveBox(target);
  reach(target);  // leaving may have closed what the rider was about to touch
  act(action);
}

void RiderCommands::press(Arguments& arguments) {
  const std::string address = arguments.word("FORM.CONTROL");
  arguments.end();
  platform::Component& target = findControl(screens_, address);
  static constexpr std::array unpressable{ControlKind::ComboBox, ControlKind::ScrollBar, ControlKind::Grid,
                                          ControlKind::Timer};
  if (std::find(unpressable.begin(), unpressable.end(), target.kind()) != unpressable.end()) {
    throw CommandError("press is nothing that one does to " + address);
  }
  touch(target, [&] { hands_.press(target); });
}

void RiderCommands::doublePress(Arguments& arguments) {
  platform::Control& target = control(arguments, "double", {});
  arguments.end();
  touch(target, [&] { hands_.doublePress(target); });
}

void RiderCommands::hover(Arguments& arguments) {
  platform::Control& target = control(arguments, "hover", {});
  arguments.end();
  point(target, [&] { hands_.hover(target); });
}

void RiderCommands::tick(Arguments& arguments) {
  platform::Control& box = control(arguments, "tick", {ControlKind::CheckBox, ControlKind::Option});
  const int value = arguments.number("0, 1 or 2");
  arguments.end();
  const int greatest = box.kind() == ControlKind::CheckBox ? 2 : 1;
  if (value < 0 || value > greatest) throw CommandError("a tick goes from 0 to " + std::to_string(greatest));
  touch(box, [&] { hands_.tick(box, value); });
}

void RiderCommands::pick(Arguments& arguments) {
  platform::Control& list = control(arguments, "pick", {ControlKind::ComboBox, ControlKind::FileList});
  const std::string wanted = arguments.text();
  reach(list);
  const std::vector<std::string>& lines = linesOf(list);
  const auto found = std::find(lines.begin(), lines.end(), wanted);
  if (found == lines.end()) {
    throw CommandError("no line \"" + wanted + "\" in " + list.name() + platform::nearNames(wanted, lines));
  }
  const int line = static_cast<int>(found - lines.begin());
  touch(list, [&] { hands_.pick(list, line); });
  keyboardIn_ = dynamic_cast<platform::ComboBox*>(&list);
}

void RiderCommands::type(Arguments& arguments) {
  platform::Control& box = control(arguments, "type", {ControlKind::ComboBox, ControlKind::TextBox});
  const std::string text = arguments.text();
  touch(box, [&] { hands_.type(box, text); });
  keyboardIn_ = dynamic_cast<platform::ComboBox*>(&box);
}

void RiderCommands::scroll(Arguments& arguments) {
  platform::Control& bar = control(arguments, "scroll", {ControlKind::ScrollBar});
  const int value = arguments.number("whole number");
  arguments.end();
  touch(bar, [&] { hands_.scroll(dynamic_cast<platform::ScrollBar&>(bar), value); });
}

void RiderCommands::cell(Arguments& arguments) {
  platform::Grid& grid = findGrid(screens_, arguments.word("FORM.CONTROL"));
  reach(grid);
  const CellPlace place = cellOf(grid, arguments);
  const std::string button = arguments.empty() ? "left" : arguments.word("button");
  arguments.end();
  if (button != "left" && button != "right")
    throw CommandError("\"" + button + "\" is neither left nor right");
  const auto pressed = button == "left" ? platform::MouseButton::Left : platform::MouseButton::Right;
  touch(grid, [&] { hands_.cell(grid, place.row, place.column, pressed); });
}

void RiderCommands::hoverCell(Arguments& arguments) {
  platform::Grid& grid = findGrid(screens_, arguments.word("FORM.CONTROL"));
  reach(grid);
  const CellPlace place = cellOf(grid, arguments);
  arguments.end();
  point(grid, [&] { hands_.hoverCell(grid, place.row, place.column); });
}

void RiderCommands::checkRow(Arguments& arguments) {
  platform::Grid& grid = findGrid(screens_, arguments.word("FORM.CONTROL"));
  reach(grid);
  const int row = arguments.number("row");
  const bool on = arguments.flag("0 or 1");
  arguments.end();
  if (row < 1 || row > grid.rowCount())
    throw CommandError(grid.name() + " has no row " + std::to_string(row));
  touch(grid, [&] { hands_.checkRow(grid, row, on); });
}

void RiderCommands::select(Arguments& arguments) {
  platform::Grid& grid = findGrid(screens_, arguments.word("FORM.CONTROL"));
  reach(grid);
  const std::vector<int> rows = rowsOf(grid, arguments.word("rows"));
  arguments.end();
  if (rows.size() > 1 && !grid.takesSeveral()) throw CommandError(grid.name() + " selects one row alone");
  touch(grid, [&] { hands_.select(grid, rows); });
}

void RiderCommands::key(Arguments& arguments) {
  platform::Control& target = control(arguments, "key", {});
  const std::string key = arguments.word("key");
  arguments.end();
  static const std::vector<std::string> everywhere{"Enter", "F5", "F8", "F9", "F10"};
  static const std::vector<std::string> onLists{
      "Enter",  "F5",     "F8",     "F9",         "F10",    "Ctrl+A",   "Ctrl+C",   "Ctrl+X",
      "Ctrl+V", "Ctrl+D", "Ctrl+R", "Ctrl+Enter", "Alt+Up", "Alt+Down", "Shift+Up", "Shift+Down"};
  const auto& keys = target.kind() == ControlKind::Grid ? onLists : everywhere;
  if (std::find(keys.begin(), keys.end(), key) == keys.end()) {
    throw CommandError("no key " + key + platform::nearNames(key, keys));
  }
  touch(target, [&] { hands_.key(target, key); });
}

}  // namespace console
