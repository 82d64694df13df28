// The commands that do what a rider does, as far as he could.
#pragma once

#include <functional>
#include <string>

#include "console/arguments.h"
#include "console/command_table.h"
#include "console/rider_hands.h"
#include "forms/screens.h"
#include "platform/event_loop.h"

namespace console {

class RiderCommands {
 public:
  RiderCommands(forms::Screens& screens, platform::EventLoop& loop, RiderHands& hands)
      : screens_(screens), loop_(loop), hands_(hands) {}

  void enrol(CommandTable& table);
  // A menu has opened at the pointer. It stays until the next command on something else.
  void menuOpened(const platform::MenuItem& root) { popUp_ = &root; }
  [[nodiscard]] const platform::MenuItem* popUp() const { return popUp_; }

 private:
  using Action = std::function<void()>;

  void press(Arguments& arguments);
  void doublePress(Arguments& arguments);
  void hover(Arguments& arguments);
  void tick(Arguments& arguments);
  void pick(Arguments& arguments);
  void type(Arguments& arguments);
  void scroll(Arguments& arguments);
  void cell(Arguments& arguments);
  void hoverCell(Arguments& arguments);
  void checkRow(Arguments& arguments);
  void key(Arguments& arguments);
  void select(Arguments& arguments);

  platform::Control& control(Arguments& arguments, std::string_view command,
                             std::initializer_list<platform::ControlKind> kinds);
  // Does it in the loop, and hands on an error of the hands.
  void act(const Action& action);
  // Both throw Refusal if the rider cannot reach the control. touch() also moves the keyboard away from the
  // list that had it; point() does not.
  void touch(const platform::Component& target, const Action& action);
  void point(const platform::Component& target, const Action& action);
  void reach(const platform::Component& target);
  void closePopUp(const platform::Component& touched);
  void leaveBox(const platform::Component& touched);

  forms::Screens& screens_;
  platform::EventLoop& loop_;
  RiderHands& hands_;
  const platform::MenuItem* popUp_ = nullptr;
  platform::ComboBox* keyboardIn_ = nullptr;  // the list that was typed or picked in last
};

}  // namespace console
