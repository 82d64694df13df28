// Why the system refused, in French.
#pragma once

#include <string>

namespace disk {

// For an error number of the system; never the number itself.
[[nodiscard]] std::string reasonOf(int error);
// Throws the fault of a call that has just failed: errno tells why.
[[noreturn]] void fail(const std::string& action, const std::string& path);
[[noreturn]] void fail(const std::string& action, const std::string& path, int error);

}  // namespace disk
