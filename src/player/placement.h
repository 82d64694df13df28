// Places films and still pictures in their box. The player has no window, so nothing is drawn; but sizes and
// commands are right, and a window would only have to follow them.
#pragma once

#include "forms/lect_mci.h"
#include "player/medium.h"

namespace player {

struct PictureSize {
  int width = 0;
  int height = 0;
};

// The largest size with the proportions of `native` that fits into the box.
[[nodiscard]] PictureSize fitted(PictureSize native, PictureSize box);

class Placement {
 public:
  Placement(forms::LectMCI& form, Medium& medium);

  void placerVideo();
  void dimensionnerImage();
  void montrerImage(const std::string& path);
  void cacherImage() { player_.AffBMP.visible = false; }
  void viderImage();

 private:
  void sendSize(const char* what, PictureSize size);

  forms::LectMCI& player_;
  Medium& medium_;
  bool redimensionner_ = false;
  bool proportion_ = true;
  PictureSize image_;  // the still picture's own size, twips
};

}  // namespace player
