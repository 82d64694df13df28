// The main window: shows one page at a time, scaled to its size.
#pragma once

#include <QMainWindow>
#include <QStackedWidget>
#include <functional>

#include "widgets/theme.h"

namespace desktop {

class MainWindow final : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(widgets::ThemeMode mode);

  void addPage(QWidget* page);
  void showPage(QWidget* page);
  void setTheme(widgets::ThemeMode mode);
  // Shows the window, no larger than the screen allows with its frame.
  void showFitting();
  // `asked` is called when the rider closes the window, and decides; without it the window just closes.
  void onClose(std::function<void()> asked) { closeAsked_ = std::move(asked); }

 signals:
  void rescaled();
  // The dialog over the window has closed.
  void unblocked();

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void restyle();
  void fitScreen();

  QStackedWidget pages_;
  widgets::ThemeMode mode_;
  double scale_ = 0;
  std::function<void()> closeAsked_;
};

}  // namespace desktop
