#include "platform/controls.h"

#include <algorithm>

#include "platform/text.h"

namespace platform {

bool canBeSeen(const Control& control) {
  if (!control.visible) return false;
  for (const Frame* around = control.container(); around != nullptr; around = around->container()) {
    if (!around->visible) return false;
  }
  return control.form().visible;
}

bool isEnabled(const Control& control) {
  if (!control.enabled) return false;
  for (const Frame* around = control.container(); around != nullptr; around = around->container()) {
    if (!around->enabled) return false;
  }
  return true;
}

void ComboBox::setLines(std::vector<std::string> lines) {
  lines_ = std::move(lines);
  const auto found = std::find(lines_.begin(), lines_.end(), text.get());
  following_ = true;
  index = found == lines_.end() ? -1 : static_cast<int>(found - lines_.begin());
  following_ = false;
  notifyWatchers(Prop::Lines);
}

void ComboBox::addLine(std::string line) {
  lines_.push_back(std::move(line));
  notifyWatchers(Prop::Lines);
}

void ComboBox::pick(int line) {
  if (line < 0 || line >= static_cast<int>(lines_.size())) return;
  if (index == line) {
    text = lines_[static_cast<std::size_t>(line)];
    click();
  } else {
    index = line;
  }
}

void ComboBox::propertyChanged(Prop id) {
  if (following_) {
    notifyWatchers(id);
    return;
  }
  following_ = true;
  if (id == Prop::Index) {
    const bool inList = index >= 0 && index < static_cast<int>(lines_.size());
    text = inList ? lines_[static_cast<std::size_t>(index.get())] : std::string();
  } else if (id == Prop::Text) {
    const auto found = std::find(lines_.begin(), lines_.end(), text.get());
    index = found == lines_.end() ? -1 : static_cast<int>(found - lines_.begin());
  }
  following_ = false;
  notifyWatchers(id);
  for (const CodeEvent& row : codeEvents()) {
    if (row.kind == kind() && row.prop == id) click();
  }
}

void ScrollBar::scrollTo(int wanted) {
  value = std::clamp(wanted, std::min(first, last), std::max(first, last));
  scroll();
}

void FileList::refresh() {
  lines_.clear();
  if (lister_ && !path.get().empty()) {
    for (std::string& name : lister_(path)) {
      if (matchesPatterns(name, pattern.get())) lines_.push_back(std::move(name));
    }
  }
  index = -1;
  notifyWatchers(Prop::Lines);
}

void FileList::propertyChanged(Prop id) {
  notifyWatchers(id);
  if (id == Prop::Text || id == Prop::Caption) refresh();
}

}  // namespace platform
