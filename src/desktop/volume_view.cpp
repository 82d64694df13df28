#include "desktop/volume_view.h"

#include "ui_volume_general.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::toQt;

VolumeView::VolumeView(forms::VolumeGeneral& form, forms::MainForm& main, QWidget& page)
    : FormView(page), volume_(form), main_(main), ui_(std::make_unique<Ui::VolumeGeneral>()) {
  ui_->setupUi(&page);
  for (platform::Component* shown :
       std::initializer_list<platform::Component*>{&form.VScroll1, &main.Label34, &main.Label36}) {
    follow(*shown);
  }
}

VolumeView::~VolumeView() = default;

void VolumeView::draw() {
  ui_->gauge->setPercent(volume_.VScroll1.value);
  ui_->advice->setText(toQt(main_.Label36.caption.get()));
  ui_->soundState->setText(toQt(main_.Label34.caption.get()));
}

}  // namespace desktop
