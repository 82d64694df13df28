// The one window: it shows a page at a time, and everything in it grows with it.
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
  // Shows the window no larger than the screen leaves room, its frame included.
  void showFitting();
  // The rider wants to close the window; it closes by itself only where nobody is asked.
  void onClose(std::function<void()> asked) { closeAsked_ = std::move(asked); }

 signals:
  void rescaled();
  // A dialog over it has closed.
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
