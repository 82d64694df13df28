// Dark or light: the rider's own choice where he made one, else what the desktop wants, as it changes.
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
  // What the desktop wants now.
  void setSystem(widgets::ThemeMode mode);
  // Fills a menu with the choices.
  void offerIn(QMenu& menu);
  // How a choice is kept from one start to the next.
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
