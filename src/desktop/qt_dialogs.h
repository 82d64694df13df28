// Message boxes and file choosers on the screen, in the program's own colours, with French buttons.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/dialogs.h"

namespace desktop {

class QtDialogs final : public platform::Dialogs {
 public:
  // `parent` gives the window that the dialogs stand over; null while there is none.
  explicit QtDialogs(std::function<QWidget*()> parent) : parent_(std::move(parent)) {}

  platform::Answer message(const platform::Message& message) override;
  std::vector<std::string> chooseFiles(const platform::FileRequest& request) override;
  std::optional<int> askNumber(const platform::NumberRequest& request) override;

 private:
  std::function<QWidget*()> parent_;
};

}  // namespace desktop
