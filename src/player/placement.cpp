#include "player/placement.h"

#include "forms/lect_mci_words.h"
#include "player/measures.h"

namespace player {
namespace {

constexpr int boxHeight = 3750;

}  // namespace

PictureSize fitted(PictureSize native, PictureSize box) {
  const double ratio = static_cast<double>(native.width) / native.height;
  const int height = static_cast<int>(box.width / ratio);
  if (height <= box.height) return {box.width, height};
  return {static_cast<int>(ratio * box.height), box.height};
}

Placement::Placement(forms::LectMCI& form, Medium& medium) : player_(form), medium_(medium) {
  player_.Picture1.width = boxWidth;
  player_.Picture1.height = boxHeight;
  player_.Check4.value = 1;
  player_.Check3.click.handle([this] {
    redimensionner_ = forms::pictureResized(player_);
    placerVideo();
    dimensionnerImage();
  });
  player_.Check4.click.handle([this] {
    proportion_ = forms::proportionKept(player_);
    placerVideo();
    dimensionnerImage();
  });
}

void Placement::sendSize(const char* what, PictureSize size) {
  medium_.send("put", " " + std::string(what) + " at 0 0 " + std::to_string(size.width) + " " +
                          std::to_string(size.height));
}

void Placement::placerVideo() {
  const PictureSize native{medium_.largeurMedia, medium_.hauteurMedia};
  const PictureSize box{player_.Picture1.width / twipsPerPixel, player_.Picture1.height / twipsPerPixel};
  if (!redimensionner_) {
    if (native.width >= 2 && native.height >= 2) sendSize("window", native);
    return;
  }
  if (proportion_ && (native.width < 1 || native.height < 1)) return;
  const PictureSize size = proportion_ ? fitted(native, box) : box;
  sendSize("window", size);
  sendSize("destination", size);
}

void Placement::montrerImage(const std::string& path) {
  cacherImage();
  player_.AffBMP.picture = path;  // what shows it gives it its own size
  image_ = {player_.AffBMP.width, player_.AffBMP.height};
  dimensionnerImage();
  player_.AffBMP.visible = true;
}

void Placement::viderImage() {
  cacherImage();
  player_.AffBMP.picture = std::string();
  image_ = {};
}

void Placement::dimensionnerImage() {
  if (image_.width < 1 || image_.height < 1) return;
  const PictureSize box{player_.Picture1.width, player_.Picture1.height};
  PictureSize size = image_;
  if (forms::pictureResized(player_)) size = forms::proportionKept(player_) ? fitted(image_, box) : box;
  player_.AffBMP.width = size.width;
  player_.AffBMP.height = size.height;
}

}  // namespace player
