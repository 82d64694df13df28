#include "platform/form.h"

#include <algorithm>
#include <stdexcept>

#include "platform/timer.h"

namespace platform {
namespace {

std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t substituted = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, substituted});
    }
  }
  return row[b.size()];
}

}  // namespace

std::string nearNames(std::string_view wanted, const std::vector<std::string>& names) {
  std::vector<std::pair<std::size_t, std::string>> ranked;
  ranked.reserve(names.size());
  for (const std::string& name : names) ranked.emplace_back(editDistance(wanted, name), name);
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::string text;
  for (std::size_t i = 0; i < ranked.size() && i < 3; ++i) {
    if (ranked[i].first > wanted.size() / 2 + 1) break;
    text += (text.empty() ? "; near: " : ", ") + ranked[i].second;
  }
  return text;
}

Form::Form(std::string name, std::string caption_)
    : Component(this, ControlKind::Form, std::move(name)),
      caption(*this, Prop::Caption, std::move(caption_)) {}

void Form::load() {
  if (loaded_) return;
  loaded_ = true;
  for (Component* component : components_) {
    if (auto* timer = dynamic_cast<Timer*>(component); timer != nullptr && scheduler_ != nullptr) {
      scheduler_->adopt(*timer);
    }
  }
  onLoad();
}

void Form::unload() {
  if (!loaded_) return;
  visible = false;
  onUnload();
  loaded_ = false;
  for (Component* component : components_) {
    if (auto* timer = dynamic_cast<Timer*>(component); timer != nullptr && scheduler_ != nullptr) {
      scheduler_->release(*timer);
    }
  }
}

void Form::show() {
  load();
  visible = true;
}

Component& Form::find(std::string_view wanted) const {
  const auto found = std::find_if(components_.begin(), components_.end(),
                                  [&](const Component* c) { return c->name() == wanted; });
  if (found != components_.end()) return **found;
  std::vector<std::string> names;
  for (const Component* component : components_) names.push_back(component->name());
  throw std::out_of_range("no control " + name() + "." + std::string(wanted) + nearNames(wanted, names));
}

}  // namespace platform
