#include "desktop/appearance.h"

#include <QActionGroup>
#include <QMenu>
#include <array>

namespace desktop {

using widgets::ThemeMode;

namespace {

using Choice = Appearance::Choice;

struct ChoiceRow {
  Choice choice;
  const char* word;     // in the settings
  const char* caption;  // in the menu
};

constexpr std::array<ChoiceRow, 3> choiceRows{{{Choice::System, "system", "Comme le système"},
                                               {Choice::Light, "light", "Claire"},
                                               {Choice::Dark, "dark", "Sombre"}}};

}  // namespace

ThemeMode Appearance::mode() const {
  if (choice_ == Choice::System) return system_;
  return choice_ == Choice::Dark ? ThemeMode::Dark : ThemeMode::Light;
}

void Appearance::choose(Choice choice) {
  if (choice == choice_) return;
  const ThemeMode before = mode();
  choice_ = choice;
  emit chosen(choice);
  update(before);
}

void Appearance::setSystem(ThemeMode mode) {
  const ThemeMode before = this->mode();
  system_ = mode;
  update(before);
}

void Appearance::update(ThemeMode before) {
  if (mode() != before) emit changed(mode());
}

void Appearance::offerIn(QMenu& menu) {
  auto* group = new QActionGroup(&menu);
  for (const ChoiceRow& row : choiceRows) {
    QAction* action = menu.addAction(QString::fromUtf8(row.caption));
    action->setCheckable(true);
    action->setChecked(row.choice == choice_);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, choice = row.choice] { choose(choice); });
    connect(this, &Appearance::chosen, action,
            [action, choice = row.choice](Choice now) { action->setChecked(now == choice); });
  }
}

QString Appearance::word(Choice choice) {
  for (const ChoiceRow& row : choiceRows) {
    if (row.choice == choice) return QString::fromLatin1(row.word);
  }
  return {};
}

Appearance::Choice Appearance::fromWord(const QString& word) {
  for (const ChoiceRow& row : choiceRows) {
    if (word == QLatin1String(row.word)) return row.choice;
  }
  return Choice::System;
}

}  // namespace desktop
