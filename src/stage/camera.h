// Takes pictures of the windows: to keep them, or to have them audited.
#pragma once

#include <string>

#include "desktop/windows.h"

namespace stage {

class Camera {
 public:
  Camera(desktop::Windows& windows, bool checks) : windows_(windows), checks_(checks) {}
  // Saves a picture of the form's window to a file, or prints what the audit finds on it. Throws
  // console::CommandError if the form has no window or the file cannot be written.
  void capture(const platform::Form& form, const std::string& path);
  // Whether the audit has found anything.
  [[nodiscard]] bool foundFaults() const { return foundFaults_; }

 private:
  desktop::Windows& windows_;
  bool checks_;
  bool foundFaults_ = false;
};

}  // namespace stage
