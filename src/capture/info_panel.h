// Advice for a rider whose microphone does not record.
#pragma once

#include "context/context.h"

namespace capture {

class InfoPanel {
 public:
  explicit InfoPanel(const context::Context& context) : form_(context.screens.announcements) {
    for (platform::Image* image : {&form_.Image1, &form_.Image5}) {
      image->click.handle([this] {
        form_.MyFrame4.left = 0;
        form_.MyFrame4.visible = true;
      });
    }
    form_.MyButton3.click.handle([this] { form_.MyFrame4.visible = false; });
    form_.MyButton14.click.handle([&shell = context.outside.shell] { shell.openSoundSettings(); });
  }

 private:
  forms::EnrUneAnnonce& form_;
};

}  // namespace capture
