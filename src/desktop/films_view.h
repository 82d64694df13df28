// Lays out the page of the help films.
#pragma once

#include <memory>

#include "desktop/form_view.h"
#include "forms/aide_tq.h"

namespace Ui {
class AideTQ;
}

namespace desktop {

class FilmsView final : public FormView {
  Q_OBJECT
 public:
  FilmsView(forms::AideTQ& form, QWidget& page);
  ~FilmsView() override;

 private:
  void draw() override;

  forms::AideTQ& films_;
  std::unique_ptr<Ui::AideTQ> ui_;
};

}  // namespace desktop
