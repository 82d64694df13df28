#include "desktop/form_window.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "desktop/window_scale.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::scaleOf;
using widgets::ThemeMode;

using widgets::toQt;

FormWindow::FormWindow(platform::Form& form, const QSize& design, ThemeMode mode, QWidget& over)
    : QDialog(&over, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      form_(form),
      over_(over),
      page_(new QWidget),
      design_(design),
      mode_(mode) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(page_);
  setMinimumSize(design * smallestScale);
  resize(design);
}

void FormWindow::whenBound() {
  restyle();
  const auto title = [this] { setWindowTitle(toQt(form_.caption.get()).trimmed()); };
  title();
  form_.watch([this, title](platform::Component&, platform::Prop prop) {
    if (prop == platform::Prop::Caption) title();
    if (prop == platform::Prop::Visible) follow();
  });
  follow();
}

void FormWindow::setTheme(ThemeMode mode) {
  mode_ = mode;
  scale_ = 0;
  restyle();
}

void FormWindow::follow() {
  if (!form_.visible) {
    hide();
    return;
  }
  if (!isVisible()) {
    resize(design_ * scaleOf(&over_));
    move(over_.geometry().center() - rect().center());
  }
  show();
  raise();
  page_->setFocus();  // no control has the keyboard until the rider wants one
}

void FormWindow::restyle() {
  const double scale = fittingScale(size(), design_);
  if (scale == scale_) return;
  scale_ = scale;
  scaleWindow(*this, *this, mode_, scale);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (scale_ > 0) restyle();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  reject();
}

void FormWindow::reject() {
  if (closeAsked_) closeAsked_();
}

}  // namespace desktop
