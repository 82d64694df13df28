#include "platform/component.h"

#include <algorithm>

#include "platform/form.h"

namespace platform {

Component::Component(Form* form, ControlKind kind, std::string name)
    : form_(form), kind_(kind), name_(std::move(name)) {
  if (kind != ControlKind::Form) form->enrol(*this);
}

PropertyBase* Component::property(Prop id) const {
  const auto found = std::find_if(properties_.begin(), properties_.end(),
                                  [&](const PropertyBase* p) { return p->id() == id; });
  return found == properties_.end() ? nullptr : *found;
}

void Component::notifyWatchers(Prop id) {
  for (const Watcher& watcher : watchers_) watcher(*this, id);
}

const std::vector<CodeEvent>& codeEvents() {
  static const std::vector<CodeEvent> table{
      {ControlKind::CheckBox, Prop::Value, EventId::Click},
      {ControlKind::Option, Prop::Value, EventId::Click},
      {ControlKind::ComboBox, Prop::Index, EventId::Click},
      {ControlKind::ScrollBar, Prop::Value, EventId::Change},
  };
  return table;
}

void Component::propertyChanged(Prop id) {
  notifyWatchers(id);
  for (const CodeEvent& row : codeEvents()) {
    if (row.kind != kind_ || row.prop != id) continue;
    if (const Event<>* raised = event(row.event)) (*raised)();
  }
}

}  // namespace platform
