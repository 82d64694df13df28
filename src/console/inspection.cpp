#include "console/inspection.h"

#include <algorithm>

#include "console/arguments.h"
#include "console/reach.h"
#include "platform/controls.h"
#include "platform/grid.h"
#include "rehearsal/escaping.h"

namespace console {
namespace {

using platform::ControlKind;
using platform::Prop;

// Which property a kind of control shows, where it is one property.
std::optional<Prop> shownProperty(ControlKind kind) {
  switch (kind) {
    case ControlKind::Button:
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::CheckBox:
    case ControlKind::Option:
    case ControlKind::MenuItem:
    case ControlKind::Form:
      return Prop::Caption;
    case ControlKind::ComboBox:
    case ControlKind::TextBox:
      return Prop::Text;
    case ControlKind::ScrollBar:
    case ControlKind::ProgressBar:
      return Prop::Value;
    case ControlKind::Image:
      return Prop::Picture;
    case ControlKind::Timer:
      return Prop::Interval;
    case ControlKind::FileList:
    case ControlKind::Grid:
      return std::nullopt;
  }
  return std::nullopt;
}

std::string joined(const std::vector<std::string>& cells) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) line += (i == 0 ? "" : "\t") + rehearsal::escaped(cells[i]);
  return line;
}

}  // namespace

std::string shownBy(const platform::Component& component) {
  if (const auto* grid = dynamic_cast<const platform::Grid*>(&component)) {
    return std::to_string(grid->rowCount());
  }
  if (const auto* files = dynamic_cast<const platform::FileList*>(&component)) {
    const int index = files->index;
    const bool picked = index >= 0 && index < static_cast<int>(files->lines().size());
    return picked ? files->lines()[static_cast<std::size_t>(index)] : std::string();
  }
  const std::optional<Prop> shown = shownProperty(component.kind());
  const platform::PropertyBase* property = shown ? component.property(*shown) : nullptr;
  return property == nullptr ? std::string() : property->asText();
}

const std::vector<std::string>& linesOf(const platform::Component& list) {
  if (const auto* files = dynamic_cast<const platform::FileList*>(&list)) return files->lines();
  if (const auto* combo = dynamic_cast<const platform::ComboBox*>(&list)) return combo->lines();
  throw CommandError(list.form().name() + "." + list.name() + " is no list");
}

void printRows(std::ostream& out, const platform::Component& gridOrList) {
  const auto* grid = dynamic_cast<const platform::Grid*>(&gridOrList);
  if (grid == nullptr) {
    for (const std::string& line : linesOf(gridOrList)) out << rehearsal::escaped(line) << '\n';
    return;
  }
  for (int row = 1; row <= grid->rowCount(); ++row) {
    std::vector<std::string> cells;
    for (int column = 1; column <= grid->columnCount(); ++column) cells.push_back(grid->text(row, column));
    out << joined(cells) << '\n';
  }
}

void printCellStyle(std::ostream& out, const platform::Grid& grid, int row, int column) {
  if (row < 1 || row > grid.rowCount() || column < 1 || column > grid.columnCount()) {
    throw CommandError(grid.name() + " has no such cell");
  }
  const platform::CellStyle style = grid.style(row, column);
  // A list's automatic colour is black on white.
  out << (style.colour.automatic ? "0,0,0" : toText(style.colour)) << (style.bold ? " bold" : "") << '\n';
}

void printVisible(std::ostream& out, const platform::Form& form, const platform::MenuItem* popUp) {
  for (const platform::Component* component : form.components()) {
    if (reachOf(*component, popUp) == Reach::Hidden) continue;
    out << form.name() << '.' << component->name() << '\t' << rehearsal::escaped(shownBy(*component));
    const bool ticked =
        component->kind() == ControlKind::CheckBox || component->kind() == ControlKind::Option;
    if (ticked) out << '\t' << component->property(Prop::Value)->asText();
    out << '\n';
  }
}

void printPlan(std::ostream& out, const model::SharedState& state) {
  out << state.nbSequences << '\t' << state.nbSeances << '\n';
  const int rows = std::min(state.nbSequences, static_cast<int>(state.plan.rows.size()) - 1);
  for (std::size_t row = 1; row <= static_cast<std::size_t>(rows); ++row) {
    out << joined(state.plan.rows[row].texts()) << '\n';
  }
}

std::string variable(const model::SharedState& state, const std::string& name) {
  if (const std::optional<std::string> text = model::variableText(state, name)) return *text;
  throw CommandError("no variable " + name + platform::nearNames(name, model::variableNames()));
}

FormsOnScreen::FormsOnScreen(forms::Screens& screens) {
  for (platform::Form* form : screens.all()) {
    if (form->visible) shown_.push_back(form);
    form->watch([this, form](platform::Component&, Prop prop) {
      if (prop != Prop::Visible) return;
      std::erase(shown_, form);
      if (form->visible) shown_.push_back(form);
    });
  }
}

}  // namespace console
