// The kinds of control that the forms are made of.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace platform {

class Button final : public Control {
 public:
  Button(Form& form, std::string name, std::string caption_ = {}, const Design& design = {})
      : Control(form, ControlKind::Button, std::move(name), design),
        caption(*this, Prop::Caption, std::move(caption_)) {}
  Property<std::string> caption;
};

class Label final : public Control {
 public:
  Label(Form& form, std::string name, std::string caption_ = {}, const Design& design = {})
      : Control(form, ControlKind::Label, std::move(name), design),
        caption(*this, Prop::Caption, std::move(caption_)) {}
  Property<std::string> caption;
};

// A picture without children: an icon, a drawn line.
class Image final : public Control {
 public:
  Image(Form& form, std::string name, const Design& design = {}, std::string picture_ = {})
      : Control(form, ControlKind::Image, std::move(name), design),
        picture(*this, Prop::Picture, std::move(picture_)) {}
  Property<std::string> picture;  // the name of what it shows
};

// A container: a frame with a caption, or a picture box that holds others.
class Frame final : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption_ = {}, const Design& design = {})
      : Control(form, ControlKind::Frame, std::move(name), design),
        caption(*this, Prop::Caption, std::move(caption_)) {}
  Property<std::string> caption;
};

// 0 off, 1 on, 2 grey. Raises its click when code changes it, too.
class CheckBox final : public Control {
 public:
  CheckBox(Form& form, std::string name, std::string caption_ = {}, const Design& design = {})
      : Control(form, ControlKind::CheckBox, std::move(name), design),
        caption(*this, Prop::Caption, std::move(caption_)) {}
  Property<std::string> caption;
  Property<int> value{*this, Prop::Value, 0};

  void toggle() { value = value == 1 ? 0 : 1; }  // the rider clicks it
};

class Option final : public Control {
 public:
  Option(Form& form, std::string name, std::string caption_ = {}, const Design& design = {})
      : Control(form, ControlKind::Option, std::move(name), design),
        caption(*this, Prop::Caption, std::move(caption_)) {}
  Property<std::string> caption;
  Property<bool> value{*this, Prop::Value, false};
};

// A drop-down list whose text may also be typed. `text` and `index` follow each other; a text that is no
// entry has the index -1. A new index from code raises the click, a new text does not.
class ComboBox final : public Control {
 public:
  ComboBox(Form& form, std::string name, std::string initialText = {}, const Design& design = {})
      : Control(form, ControlKind::ComboBox, std::move(name), design),
        text(*this, Prop::Text, std::move(initialText)) {}
  Property<std::string> text;
  Property<int> index{*this, Prop::Index, -1};
  Event<> enter;     // Enter pressed in the box
  Event<> validate;  // the rider leaves the box

  [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
  void setLines(std::vector<std::string> lines);
  void addLine(std::string line);
  // The rider picks a line: the click comes even where it was picked already.
  void pick(int line);
  // The rider types: the text changes, the list stays; no click.
  void type(const std::string& typed) { text = typed; }

 private:
  void propertyChanged(Prop id) override;

  std::vector<std::string> lines_;
  bool following_ = false;  // while one is set after the other, no click is raised
};

class TextBox final : public Control {
 public:
  TextBox(Form& form, std::string name, std::string initialText = {}, const Design& design = {})
      : Control(form, ControlKind::TextBox, std::move(name), design),
        text(*this, Prop::Text, std::move(initialText)) {}
  Property<std::string> text;
  Event<> enter;
};

// Raises its change when code moves it, too; the scroll comes only from the rider.
class ScrollBar final : public Control {
 public:
  ScrollBar(Form& form, std::string name, std::pair<int, int> bounds, int initial, const Design& design = {})
      : Control(form, ControlKind::ScrollBar, std::move(name), design),
        first(bounds.first),
        last(bounds.second),
        value(*this, Prop::Value, initial) {}
  const int first;  // the value at the top or left; may be the greater one
  const int last;
  Property<int> value;
  Event<> change;
  Event<> scroll;

  void scrollTo(int wanted);  // the rider moves it; kept within the bounds
  void focus() { notifyWatchers(Prop::Focus); }
  [[nodiscard]] const Event<>* event(EventId id) const override {
    return id == EventId::Change ? &change : nullptr;
  }
};

class ProgressBar final : public Control {
 public:
  ProgressBar(Form& form, std::string name, const Design& design = {})
      : Control(form, ControlKind::ProgressBar, std::move(name), design) {}
  Property<int> value{*this, Prop::Value, 0};  // %
};

// A list of the files of one folder that fit a pattern, in order of name.
class FileList final : public Control {
 public:
  using Lister = std::function<std::vector<std::string>(const std::string& folder)>;

  FileList(Form& form, std::string name, std::string pattern_, const Design& design = {})
      : Control(form, ControlKind::FileList, std::move(name), design),
        pattern(*this, Prop::Caption, std::move(pattern_)) {}
  Property<std::string> path{*this, Prop::Text, {}};
  Property<std::string> pattern;  // "*.mp3;*.wma"
  Property<int> index{*this, Prop::Index, -1};
  Event<std::string> key;

  void readThrough(Lister lister) { lister_ = std::move(lister); }
  // Reads the folder again. A new path or pattern does so by itself.
  void refresh();
  [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

 private:
  void propertyChanged(Prop id) override;

  Lister lister_;
  std::vector<std::string> lines_;
};

}  // namespace platform
