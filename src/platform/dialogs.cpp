#include "platform/dialogs.h"

#include "platform/text.h"

namespace platform {

std::string suffixOf(const std::string& filter) {
  const std::vector<std::string> parts = split(filter, '|');
  if (parts.size() < 2) return {};
  const std::string pattern = split(parts[1], ';').front();
  const std::size_t dot = pattern.rfind('.');
  if (dot == std::string::npos || pattern.find('*', dot) != std::string::npos) return {};
  return pattern.substr(dot);
}

std::string withSuffix(const std::string& name, const std::string& filter) {
  const std::string suffix = suffixOf(filter);
  return lowerAscii(name).ends_with(lowerAscii(suffix)) ? name : name + suffix;
}

}  // namespace platform
