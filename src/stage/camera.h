// Takes pictures of the windows: to keep them, or to have them audited.
#pragma once

#include <string>

#include "desktop/windows.h"

namespace stage {

class Camera {
 public:
  Camera(desktop::Windows& windows, bool checks) : windows_(windows), checks_(checks) {}
  // Draws what shows a form to a file, or tells what the audit finds in it; throws console::CommandError
  // where that cannot be done.
  void capture(const platform::Form& form, const std::string& path);
  // Whether the audit has found anything.
  [[nodiscard]] bool foundFaults() const { return foundFaults_; }

 private:
  desktop::Windows& windows_;
  bool checks_;
  bool foundFaults_ = false;
};

}  // namespace stage
