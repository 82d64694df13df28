// A run-time fault: it ends the handler that it happened in, never the program.
// Its text is French, for the rider, and names the file or value that failed.
#pragma once

#include <stdexcept>
#include <string>

namespace platform {

class Fault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A file or folder that could not be made, opened, read or written.
class FileFault : public Fault {
 public:
  FileFault(const std::string& action, const std::string& path, const std::string& reason)
      : Fault("Impossible " + action + " « " + path + " » : " + reason + "."), path_(path), reason_(reason) {}
  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] const std::string& reason() const { return reason_; }

 private:
  std::string path_;
  std::string reason_;
};

// What was asked for does not fit into memory.
class OutOfMemory : public Fault {
 public:
  OutOfMemory() : Fault("La mémoire est insuffisante.") {}
};

}  // namespace platform
