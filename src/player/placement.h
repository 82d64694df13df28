// Where the film and the still pictures stand in their box. Nothing is drawn without a window; the sizes
// and the commands are kept, so that a window needs nothing but to follow them.
#pragma once

#include "forms/lect_mci.h"
#include "player/medium.h"

namespace player {

struct PictureSize {
  int width = 0;
  int height = 0;
};

// The greatest size of the shape of `native` that fits into the box.
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
