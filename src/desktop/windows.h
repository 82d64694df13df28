// All windows of a program: one page for each form, bound to its controls. A page is made when it is first
// wanted: what nobody opens costs nothing.
#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "app/program.h"
#include "desktop/appearance.h"
#include "desktop/binder.h"
#include "desktop/form_view.h"
#include "desktop/form_window.h"
#include "desktop/main_window.h"
#include "desktop/shortcuts.h"

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
  [[nodiscard]] QWidget* page(const platform::Form& form);
  // The window that shows a form; null for a form without one.
  [[nodiscard]] QWidget* windowOf(const platform::Form& form);
  // Shows the text that the voice is speaking; empty for silence.
  void speak(const QString& text);
  // `save` writes the recorder's take to a file, so that its waveform can be drawn. To be called before the
  // page of the announcements is opened.
  void saveTakesBy(std::function<void(const std::string& path)> save) { saveTake_ = std::move(save); }
  // Adds a session file that was opened in the file manager to the editor's list, once no dialog and no sound
  // is in the way. A ride under way goes on.
  void addSession(const std::string& path);
  // Draws everything anew at once.
  void refresh();
  // Draws at once what has changed and is not drawn yet.
  void catchUp();

 private:
  struct Room;
  [[nodiscard]] std::vector<Room> plan();
  Room* roomOf(const platform::Form& form);
  void furnish(Room& room);
  void furnishPage(Room& room);
  void furnishWindow(Room& room);
  void follow(Room& room);
  void showWhatIsLeft();
  void followListMode();
  void addWaitingSessions();
  void addWaitingSession();
  void makeDraggable(QWidget& page);
  void offerAppearance(QWidget& mainPage);
  void setTheme(widgets::ThemeMode mode);
  bool eventFilter(QObject* watched, QEvent* event) override;

  app::Program& program_;
  Appearance appearance_;
  MainWindow window_;
  Binder binder_;
  Shortcuts shortcuts_;
  std::vector<Room> rooms_;
  QString spoken_;
  std::function<void(const std::string& path)> saveTake_;
  std::deque<std::string> inbox_;  // session files that wait for a dialog to close
};

}  // namespace desktop
