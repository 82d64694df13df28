// Advice for a rider whose microphone does not record.
#pragma once

#include "context/context.h"

namespace announcements {

class InfoPanel {
 public:
  explicit InfoPanel(const context::Context& context) : page_(context.screens.announcements) {
    for (platform::Image* image : {&page_.Image1, &page_.Image5}) {
      image->click.handle([this] {
        page_.MyFrame4.left = 0;
        page_.MyFrame4.visible = true;
      });
    }
    page_.MyButton3.click.handle([this] { page_.MyFrame4.visible = false; });
    page_.MyButton14.click.handle([&shell = context.outside.shell] { shell.openSoundSettings(); });
  }

 private:
  forms::EnrUneAnnonce& page_;
};

}  // namespace announcements
