// The stage's commands fail if the window does not let a rider touch a control that the form shows.
#include "stage/widget_hands.h"

#include <gtest/gtest.h>

#include <QAction>
#include <functional>

#include "support/simulated_program.h"

namespace {

TEST(WidgetHands, WhatTheFormShowsAndTheWindowDoesNotIsAnError) {
  stage::WidgetHands hands;
  support::SimulatedProgram program(support::settingsOff, std::chrono::hours(12),
                                    rehearsal::SoundMode::Instant, &hands);
  ASSERT_TRUE(program.start());
  desktop::Windows windows(program.program(), widgets::ThemeMode::Dark);
  hands.attach(windows);
  windows.window().show();
  forms::MainForm& form = program.screens().main;
  QWidget& page = *windows.page(form);
  auto& button = *page.findChild<QWidget*>("MyButton5");
  auto& panel = *page.findChild<QWidget*>("Picture6");
  auto& entry = *page.findChild<QAction*>("mnCreat");
  QWidget cover(button.parentWidget());
  cover.setObjectName("cover");

  const std::tuple<const char*, std::function<void(bool)>, std::string> faults[] = {
      {"MyButton5", [&](bool on) { button.setHidden(on); },
       "its widget is not to be seen, for MyButton5 is hidden"},
      {"MyButton5", [&](bool on) { button.setDisabled(on); }, "its widget is disabled"},
      {"MyButton5",
       [&](bool on) {
         cover.setGeometry(button.geometry());
         cover.setVisible(on);
         cover.raise();
       },
       "its widget lies under cover"},
      // The ride's panel may cover the button, but not while it is hidden itself.
      {"MyButton5",
       [&](bool on) {
         form.Picture6.visible = on;
         panel.hide();
       },
       "its widget is not to be seen, for buttonRow is hidden"},
      {"mnCreat", [&](bool on) { entry.setVisible(!on); }, "its menu does not offer it"},
  };
  for (const auto& [control, make, why] : faults) {
    const std::string address = std::string("MainForm.") + control;
    make(true);
    EXPECT_EQ(program.attempt("press " + address), "error: " + address + ": " + why + "\n");
    EXPECT_FALSE(program.screens().editor.visible) << why;
    make(false);
  }
  EXPECT_EQ(program.run("press MainForm.MyButton5"), "");
  EXPECT_TRUE(program.screens().editor.visible);
}

}  // namespace
