// The entries of the main menu that lead to the web, and the contact notice.
#pragma once

#include <string>

#include "context/context.h"

namespace help {

class Web {
 public:
  explicit Web(const context::Context& context);

 private:
  void visit(const std::string& address);

  context::Context context_;
};

}  // namespace help
