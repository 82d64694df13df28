// Saving the take as an announcement.
#pragma once

#include <optional>
#include <string>

#include "context/context.h"

namespace announcements {

class TakeSaving {
 public:
  explicit TakeSaving(const context::Context& context);

 private:
  void save();
  // Returns whether the take has been written under that name.
  bool write(const std::string& name);
  // The announcement's name without its extension; none where the rider gave up or the name is refused.
  std::optional<std::string> askName();
  [[nodiscard]] std::string proposedName() const;
  [[nodiscard]] std::string pathOf(const std::string& name) const;

  context::Context context_;
  forms::EnrUneAnnonce& page_;
};

}  // namespace announcements
