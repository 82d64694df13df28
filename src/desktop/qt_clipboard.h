// The desktop's clipboard.
#pragma once

#include "platform/clipboard.h"

namespace desktop {

class QtClipboard final : public platform::Clipboard {
 public:
  std::string text() override;
  void setText(const std::string& text) override;
};

}  // namespace desktop
