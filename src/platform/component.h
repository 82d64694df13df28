// What every named thing on a form has in common: its name, its form, its properties, its watchers.
#pragma once

#include <functional>
#include <list>
#include <string>
#include <vector>

#include "platform/event.h"
#include "platform/property.h"

namespace platform {

class Form;

enum class ControlKind : std::uint8_t {
  Form,
  Button,
  Label,
  Image,
  Frame,
  CheckBox,
  Option,
  ComboBox,
  TextBox,
  ScrollBar,
  FileList,
  Grid,
  ProgressBar,
  MenuItem,
  Timer,
};

enum class EventId : std::uint8_t { Click, Change };

class Component {
 public:
  using Watcher = std::function<void(Component&, Prop)>;

  Component(Form* form, ControlKind kind, std::string name);
  virtual ~Component() = default;
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  [[nodiscard]] ControlKind kind() const { return kind_; }
  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] Form& form() const { return *form_; }

  // A property by its id, null where this kind of control has none such.
  [[nodiscard]] PropertyBase* property(Prop id) const;
  [[nodiscard]] const std::vector<PropertyBase*>& properties() const { return properties_; }
  // For the fronts: called after each real change, for as long as the component lives.
  void watch(Watcher watcher) { watchers_.push_back(std::move(watcher)); }

  // The events that a write from code can raise; null where this kind has none such.
  [[nodiscard]] virtual const Event<>* event(EventId) const { return nullptr; }

 protected:
  void notifyWatchers(Prop id);

 private:
  friend class PropertyBase;
  void enrol(PropertyBase& property) { properties_.push_back(&property); }
  virtual void propertyChanged(Prop id);

  Form* form_;
  ControlKind kind_;
  std::string name_;
  std::vector<PropertyBase*> properties_;
  std::list<Watcher> watchers_;  // each stays where it is: one that runs may add another
};

// Which control raises which event when code, and not only the rider, changes a property.
struct CodeEvent {
  ControlKind kind;
  Prop prop;
  EventId event;
};
[[nodiscard]] const std::vector<CodeEvent>& codeEvents();

}  // namespace platform
