#include "console/names.h"

#include <vector>

#include "console/arguments.h"
#include "platform/form.h"
#include "platform/text.h"

namespace console {
namespace {

std::string propertiesOf(const platform::Component& component) {
  std::string names;
  for (const platform::PropertyBase* property : component.properties()) {
    const std::string_view name = platform::propertyName(property->id());
    if (!name.empty()) names.append(names.empty() ? "" : ", ").append(name);
  }
  return names;
}

platform::PropertyBase& propertyOf(const platform::Component& component, const std::string& name) {
  const std::optional<platform::Prop> id = platform::propertyByName(name);
  platform::PropertyBase* property = id ? component.property(*id) : nullptr;
  if (property == nullptr) {
    throw CommandError(component.name() + " has no property " + name + ", only " + propertiesOf(component));
  }
  return *property;
}

platform::Component& controlOf(const platform::Form& form, const std::string& name) {
  try {
    return form.find(name);
  } catch (const std::out_of_range& unknown) {
    throw CommandError(unknown.what());
  }
}

}  // namespace

platform::Form& findForm(forms::Screens& screens, const std::string& name) {
  std::vector<std::string> names;
  for (platform::Form* form : screens.all()) {
    if (form->name() == name) return *form;
    names.push_back(form->name());
  }
  throw CommandError("no form " + name + platform::nearNames(name, names));
}

platform::Component& findControl(forms::Screens& screens, const std::string& address) {
  const std::vector<std::string> parts = platform::split(address, '.');
  if (parts.size() != 2) throw CommandError("\"" + address + "\" is no FORM.CONTROL");
  return controlOf(findForm(screens, parts[0]), parts[1]);
}

platform::Grid& findGrid(forms::Screens& screens, const std::string& address) {
  auto* grid = dynamic_cast<platform::Grid*>(&findControl(screens, address));
  if (grid == nullptr) throw CommandError(address + " is no grid");
  return *grid;
}

PropertyAddress findProperty(forms::Screens& screens, const std::string& address) {
  const std::vector<std::string> parts = platform::split(address, '.');
  if (parts.size() < 2 || parts.size() > 3) throw CommandError("\"" + address + "\" is no FORM.CONTROL.PROP");
  platform::Form& form = findForm(screens, parts[0]);
  if (parts.size() == 2 && platform::propertyByName(parts[1])) return {&form, &propertyOf(form, parts[1])};
  platform::Component& control = controlOf(form, parts[1]);
  return {&control, parts.size() == 3 ? &propertyOf(control, parts[2]) : nullptr};
}

}  // namespace console
