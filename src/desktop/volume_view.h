// Draws what the volume dialog's controls do not show themselves: the gauge, and the main screen's advice.
#pragma once

#include <memory>

#include "desktop/form_view.h"
#include "forms/main_form.h"
#include "forms/volume_general.h"

namespace Ui {
class VolumeGeneral;
}

namespace desktop {

class VolumeView final : public FormView {
  Q_OBJECT
 public:
  VolumeView(forms::VolumeGeneral& form, forms::MainForm& main, QWidget& page);
  ~VolumeView() override;

 private:
  void draw() override;
  forms::VolumeGeneral& volume_;
  forms::MainForm& main_;
  std::unique_ptr<Ui::VolumeGeneral> ui_;
};

}  // namespace desktop
