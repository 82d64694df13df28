// All windows of a program: one page for each form, bound to its controls.
#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <memory>
#include <string>

#include "app/program.h"
#include "desktop/announce_view.h"
#include "desktop/appearance.h"
#include "desktop/binder.h"
#include "desktop/editor_view.h"
#include "desktop/form_window.h"
#include "desktop/main_view.h"
#include "desktop/main_window.h"
#include "desktop/print_view.h"
#include "desktop/volume_view.h"

namespace desktop {

class Windows final : public QObject {
  Q_OBJECT
 public:
  // `system` is what the desktop wants, `choice` what the rider wants.
  Windows(app::Program& program, widgets::ThemeMode system,
          Appearance::Choice choice = Appearance::Choice::System);
  ~Windows() override;

  [[nodiscard]] MainWindow& window() { return window_; }
  [[nodiscard]] Binder& binder() { return binder_; }
  // Dark or light; a change shows at once.
  [[nodiscard]] Appearance& appearance() { return appearance_; }
  // The page that shows a form; null for a form without one.
  [[nodiscard]] QWidget* page(const platform::Form& form) const;
  // The window that shows a form; null for a form without one.
  [[nodiscard]] QWidget* windowOf(const platform::Form& form);
  void speak(const QString& text);
  // `save` writes the recorder's take to a file, so that its waveform can be drawn.
  void saveTakesBy(std::function<void(const std::string& path)> save) {
    announceView_->saveTakesBy(std::move(save));
  }
  // Adds a session file that was opened in the file manager to the editor's list, once no dialog and no sound
  // is in the way. A ride under way goes on.
  void addSession(const std::string& path);
  // Brings all that is drawn up to date at once.
  void refresh();

 private:
  void followForm(platform::Form& form, QWidget& page);
  void showWhatIsLeft();
  void openFormWindow(FormWindow& window, platform::Form& form, platform::Button& way);
  void addWaitingSessions();
  void addWaitingSession();
  void makeDraggable();
  void offerAppearance();
  void setTheme(widgets::ThemeMode mode);
  bool eventFilter(QObject* watched, QEvent* event) override;

  app::Program& program_;
  Appearance appearance_;
  MainWindow window_;
  Binder binder_;
  QWidget* mainPage_;
  QWidget* editorPage_;
  QWidget* announcePage_;
  std::unique_ptr<MainView> mainView_;
  std::unique_ptr<EditorView> editorView_;
  std::unique_ptr<AnnounceView> announceView_;
  FormWindow volumeWindow_;
  FormWindow printWindow_;
  FormWindow filmsWindow_;
  std::unique_ptr<VolumeView> volumeView_;
  std::unique_ptr<PrintView> printView_;
  std::deque<std::string> inbox_;  // session files that wait for a dialog to close
};

}  // namespace desktop
