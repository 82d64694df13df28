// The windows over a simulated program, as a rider finds them after the start.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <optional>

#include "desktop/windows.h"
#include "support/simulated_program.h"

class WindowsTestBase : public testing::Test {
 protected:
  WindowsTestBase() {
    EXPECT_TRUE(program_.start());
    windows_.emplace(program_.program(), widgets::ThemeMode::Dark);
    windows_->window().show();
  }
  template <class Widget>
  Widget& widget(const platform::Form& form, const char* name) {
    auto* found = windows_->page(form)->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::out_of_range(name);
    return *found;
  }
  void settle() {
    windows_->refresh();
    QCoreApplication::processEvents();
  }

  support::SimulatedProgram program_;
  forms::Screens& screens_ = program_.screens();
  std::optional<desktop::Windows> windows_;
};
