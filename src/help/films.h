// The help films: the page of buttons, the lists of films, and what opens the page.
#pragma once

#include <string>

#include "voice/toolbox.h"

namespace help {

class Films {
 public:
  explicit Films(const voice::Toolbox& tools);

 private:
  void connectPage();
  void connectOpeners();
  void playIfThere(const std::string& film);
  // Whatever the system has for films plays it, and says itself where it cannot.
  void play(const std::string& film);
  [[nodiscard]] std::string pathOf(const std::string& film) const;

  voice::Toolbox tools_;
  forms::AideTQ& page_;
};

}  // namespace help
