// Advice for a rider whose microphone does not record.
#pragma once

#include "voice/toolbox.h"

namespace capture {

class InfoPanel {
 public:
  explicit InfoPanel(const voice::Toolbox& tools) : form_(tools.screens.announcements) {
    for (platform::Image* image : {&form_.Image1, &form_.Image5}) {
      image->click.handle([this] {
        form_.MyFrame4.left = 0;
        form_.MyFrame4.visible = true;
      });
    }
    form_.MyButton3.click.handle([this] { form_.MyFrame4.visible = false; });
    form_.MyButton14.click.handle([&shell = tools.outside.shell] { shell.openSoundSettings(); });
  }

 private:
  forms::EnrUneAnnonce& form_;
};

}  // namespace capture
