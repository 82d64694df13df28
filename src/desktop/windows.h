// All windows over a program: one page a form, bound to its controls.
#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "app/program.h"
#include "desktop/binder.h"
#include "desktop/editor_view.h"
#include "desktop/main_view.h"
#include "desktop/main_window.h"

namespace desktop {

class Windows final : public QObject {
  Q_OBJECT
 public:
  Windows(app::Program& program, ThemeMode mode);
  ~Windows() override;

  [[nodiscard]] MainWindow& window() { return window_; }
  [[nodiscard]] Binder& binder() { return binder_; }
  // The page that shows a form; null for a form without one.
  [[nodiscard]] QWidget* page(const platform::Form& form) const;
  void speak(const QString& text);
  // Brings what is drawn up to date at once.
  void refresh();

 private:
  void followForm(platform::Form& form, QWidget& page);
  void addShortcuts();
  void makeDraggable();
  bool eventFilter(QObject* watched, QEvent* event) override;

  app::Program& program_;
  MainWindow window_;
  Binder binder_;
  QWidget* mainPage_;
  QWidget* editorPage_;
  std::unique_ptr<MainView> mainView_;
  std::unique_ptr<EditorView> editorView_;
};

}  // namespace desktop
