// Draws the preview of the pages on the print form.
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "forms/imprimer_tq1.h"

namespace Ui {
class ImprimerTQ1;
}

namespace desktop {

class PrintView final : public QObject {
  Q_OBJECT
 public:
  PrintView(forms::ImprimerTQ1& form, QWidget& page);
  ~PrintView() override;
  void refresh();

 private:
  forms::ImprimerTQ1& print_;
  std::unique_ptr<Ui::ImprimerTQ1> ui_;
  QTimer pending_;
  bool listMoved_ = true;
};

}  // namespace desktop
