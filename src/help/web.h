// The entries of the main menu that lead to the web, and the contact notice.
#pragma once

#include <string>

#include "voice/toolbox.h"

namespace help {

class Web {
 public:
  explicit Web(const voice::Toolbox& tools);

 private:
  void visit(const std::string& address);

  voice::Toolbox tools_;
};

}  // namespace help
