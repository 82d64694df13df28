#include "player/placement.h"

namespace player {
namespace {

constexpr int twipsPerPixel = 15;
constexpr int boxWidth = 5000;
constexpr int boxHeight = 3750;

}  // namespace

PixelSize fitted(PixelSize native, PixelSize box) {
  const double ratio = static_cast<double>(native.width) / native.height;
  const int height = static_cast<int>(box.width / ratio);
  if (height <= box.height) return {box.width, height};
  return {static_cast<int>(ratio * box.height), box.height};
}

Placement::Placement(forms::LectMCI& form, Medium& medium) : form_(form), medium_(medium) {
  form_.Picture1.width = boxWidth;
  form_.Picture1.height = boxHeight;
  form_.Check4.value = 1;
  form_.Check3.click.handle([this] {
    redimensionner_ = form_.Check3.value == 1;
    placerVideo();
    dimensionnerImage();
  });
  form_.Check4.click.handle([this] {
    proportion_ = form_.Check4.value == 1;
    placerVideo();
    dimensionnerImage();
  });
}

void Placement::sendSize(const char* what, PixelSize size) {
  medium_.send("put", " " + std::string(what) + " at 0 0 " + std::to_string(size.width) + " " +
                          std::to_string(size.height));
}

void Placement::placerVideo() {
  const PixelSize native{medium_.largeurMedia, medium_.hauteurMedia};
  const PixelSize box{form_.Picture1.width / twipsPerPixel, form_.Picture1.height / twipsPerPixel};
  if (!redimensionner_) {
    if (native.width >= 2 && native.height >= 2) sendSize("window", native);
    return;
  }
  if (proportion_ && (native.width < 1 || native.height < 1)) return;
  const PixelSize size = proportion_ ? fitted(native, box) : box;
  sendSize("window", size);
  sendSize("destination", size);
}

void Placement::montrerImage(const std::string& path) {
  cacherImage();
  form_.AffBMP.picture = path;  // what shows it gives it its own size
  image_ = {form_.AffBMP.width, form_.AffBMP.height};
  dimensionnerImage();
  form_.AffBMP.visible = true;
}

void Placement::viderImage() {
  cacherImage();
  form_.AffBMP.picture = std::string();
  image_ = {};
}

void Placement::dimensionnerImage() {
  if (image_.width < 1 || image_.height < 1) return;
  const PixelSize box{form_.Picture1.width, form_.Picture1.height};
  PixelSize size = image_;
  if (form_.Check3.value == 1) size = form_.Check4.value == 1 ? fitted(image_, box) : box;
  form_.AffBMP.width = size.width;
  form_.AffBMP.height = size.height;
}

}  // namespace player
