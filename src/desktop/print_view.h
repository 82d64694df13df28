// Draws the preview of the pages on the print form.
#pragma once

#include <memory>

#include "desktop/form_view.h"
#include "forms/imprimer_tq1.h"

namespace Ui {
class ImprimerTQ1;
}

namespace desktop {

class PrintView final : public FormView {
  Q_OBJECT
 public:
  PrintView(forms::ImprimerTQ1& form, QWidget& page);
  ~PrintView() override;

 private:
  void draw() override;
  forms::ImprimerTQ1& print_;
  std::unique_ptr<Ui::ImprimerTQ1> ui_;
  bool listMoved_ = true;
};

}  // namespace desktop
