// The help films: the page of buttons, the lists of films, and what opens the page.
#pragma once

#include <string>

#include "context/context.h"

namespace help {

class Films {
 public:
  explicit Films(const context::Context& context);

 private:
  void connectPage();
  void connectOpeners();
  void playIfThere(const std::string& film);
  // The desktop's own film player plays it, and reports its own errors.
  void play(const std::string& film);
  [[nodiscard]] std::string pathOf(const std::string& film) const;

  context::Context context_;
  forms::AideTQ& page_;
};

}  // namespace help
