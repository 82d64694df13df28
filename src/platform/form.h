// A screen as plain state: the registry of its controls, and whether it is loaded and shown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/component.h"

namespace platform {

class Timer;

// Who runs the timers of a loaded form.
class TimerScheduler {
 public:
  virtual ~TimerScheduler() = default;
  virtual void adopt(Timer& timer) = 0;
  virtual void release(Timer& timer) = 0;
  // The timer was turned on or off, or its interval changed: its period starts anew.
  virtual void restart(Timer& timer) = 0;
  // The timer's ticks are skipped until it is woken; false where they are not, so that nothing need wake it.
  virtual bool layToRest(Timer& timer) = 0;
  virtual void wake(Timer& timer) = 0;
};

class Form : public Component {
 public:
  explicit Form(std::string name, std::string caption = {});

  Property<std::string> caption;
  Property<bool> visible{*this, Prop::Visible, false};
  Property<bool> maximised{*this, Prop::Value, false};
  Event<> onLoad;
  Event<> onUnload;

  void attach(TimerScheduler& scheduler) { scheduler_ = &scheduler; }
  [[nodiscard]] bool loaded() const { return loaded_; }
  // Starts the form's timers and runs its load; nothing on a loaded form.
  void load();
  // Hides the form, stops its timers and runs its unload.
  void unload();
  void show();
  void hide() { visible = false; }

  [[nodiscard]] const std::vector<Component*>& components() const { return components_; }
  // The control of that name; std::out_of_range, whose text lists the near ones, where there is none.
  [[nodiscard]] Component& find(std::string_view name) const;

 private:
  friend class Component;
  void enrol(Component& component) { components_.push_back(&component); }

  std::vector<Component*> components_;
  TimerScheduler* scheduler_ = nullptr;
  bool loaded_ = false;
};

// Up to three names of `names` that resemble `wanted`, as "; near: a, b"; empty where none does.
[[nodiscard]] std::string nearNames(std::string_view wanted, const std::vector<std::string>& names);

}  // namespace platform
