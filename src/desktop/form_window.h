// Shows a form in a window of its own, over the main window, while the form is visible.
#pragma once

#include <QDialog>
#include <functional>

#include "platform/form.h"
#include "widgets/theme.h"

namespace desktop {

class FormWindow final : public QDialog {
  Q_OBJECT
 public:
  // `design` is its size in px beside a main window of 1280 x 800.
  FormWindow(platform::Form& form, const QSize& design, widgets::ThemeMode mode, QWidget& over);
  [[nodiscard]] QWidget& page() const { return *page_; }
  // To be called once the page is bound: gives it the window's scale, and follows the form from now on.
  void whenBound();
  void setTheme(widgets::ThemeMode mode);
  // `asked` is called when the window is closed or Escape pressed; it shall leave the form.
  void onClose(std::function<void()> asked) { closeAsked_ = std::move(asked); }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  void follow();
  void restyle();

  platform::Form& form_;
  QWidget& over_;
  QWidget* page_;
  QSize design_;
  widgets::ThemeMode mode_;
  double scale_ = 0;
  std::function<void()> closeAsked_;
};

}  // namespace desktop
