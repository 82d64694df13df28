// What kind of medium a file is, and the size of its picture, from its own bytes.
#pragma once

#include <functional>
#include <string>

#include "platform/file_system.h"

namespace player {

// Whether the name is that of a still picture.
[[nodiscard]] bool ItIsAPic(const std::string& path);

// "mid", "wmv", "ram", "mpg", "avi", "wav" or "dat" by the file's first bytes, else its own extension.
[[nodiscard]] std::string typeParContenu(platform::FileSystem& files, const std::string& path);

struct Identification {
  int largeurMedia = 0;
  int hauteurMedia = 0;
  std::string infoMedia;  // code and size, as "MPEG  [352x288]"
};

// `askDevice` gives "left top width height" where the open device knows the picture's size.
[[nodiscard]] Identification identifierMedia(platform::FileSystem& files, const std::string& path,
                                             const std::function<std::string()>& askDevice);

}  // namespace player
