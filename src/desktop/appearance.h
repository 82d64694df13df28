// Dark or light: the rider's own choice if he has made one, else what the desktop wants at the time.
#pragma once

#include <QObject>

#include "widgets/theme.h"

class QMenu;
class QString;

namespace desktop {

class Appearance final : public QObject {
  Q_OBJECT
 public:
  enum class Choice { System, Light, Dark };

  explicit Appearance(widgets::ThemeMode system, Choice choice = Choice::System)
      : system_(system), choice_(choice) {}
  [[nodiscard]] widgets::ThemeMode mode() const;
  [[nodiscard]] widgets::ThemeMode system() const { return system_; }
  void choose(Choice choice);
  // To be called when the desktop wants another mode.
  void setSystem(widgets::ThemeMode mode);
  // Adds the choices to a menu.
  void offerIn(QMenu& menu);
  // The word for a choice in the settings. For any other word fromWord() gives Choice::System.
  [[nodiscard]] static QString word(Choice choice);
  [[nodiscard]] static Choice fromWord(const QString& word);

 signals:
  void chosen(desktop::Appearance::Choice choice);
  void changed(widgets::ThemeMode mode);

 private:
  void update(widgets::ThemeMode before);

  widgets::ThemeMode system_;
  Choice choice_;
};

}  // namespace desktop
