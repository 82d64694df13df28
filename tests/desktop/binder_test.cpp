// Binding pages to their forms: every control has a widget, presses arrive, changes by code raise no events.
#include "desktop/binder.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include "desktop/editor_view.h"
#include "desktop/loop_alarm.h"
#include "desktop/main_view.h"
#include "desktop/unseen_controls.h"
#include "forms/screens.h"
#include "platform/clock.h"
#include "rehearsal/simulated_clock.h"

namespace {

using desktop::Binder;
using desktop::bindingFaults;
using testing::ElementsAre;

class BinderTest : public testing::Test {
 protected:
  template <class Widget>
  Widget& widget(QWidget& page, const char* name) {
    auto* found = page.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::out_of_range(name);
    return *found;
  }

  rehearsal::SimulatedClock clock_{platform::LocalTime{}};
  platform::EventLoop loop_{clock_};
  forms::Screens screens_;
  model::SharedState state_;
  Binder binder_{loop_};
  QWidget main_;
  QWidget editor_;
  desktop::MainView mainView_{screens_.main, state_, main_};
  desktop::EditorView editorView_{screens_.editor, state_, editor_, binder_};
};

TEST_F(BinderTest, EveryControlStandsOnceOnItsPage) {
  EXPECT_EQ(bindingFaults(screens_.main, main_).join('\n').toStdString(), "");
  EXPECT_EQ(bindingFaults(screens_.editor, editor_).join('\n').toStdString(), "");

  // Each kind of fault is found.
  delete main_.findChild<QWidget*>("MyButton5");
  widget<QWidget>(main_, "MyButton6").setObjectName("MyButton7");
  widget<QLabel>(main_, "Label30").setObjectName("Command4x");
  QLabel wrongKind(&main_);
  widget<QPushButton>(main_, "Command4").setObjectName("");
  wrongKind.setObjectName("Command4");
  const QStringList faults = bindingFaults(screens_.main, main_);
  EXPECT_THAT(std::vector<QString>(faults.begin(), faults.end()),
              testing::UnorderedElementsAre(
                  "MainForm.MyButton5: no widget shows it", "MainForm.MyButton6: no widget shows it",
                  "MainForm.MyButton7: stands 2 times", "MainForm.Label30: no widget shows it",
                  "MainForm.Command4: a widget of this class cannot show it"));
  EXPECT_THROW(binder_.bind(screens_.main, main_), std::logic_error);
  for (const desktop::UnseenControl& unseen : desktop::unseenControls()) {
    for (const platform::Form* form : screens_.all()) {
      if (form->name() != unseen.form) continue;
      EXPECT_NO_THROW((void)form->find(unseen.control));
    }
  }
}

// Clicks, picks and typed texts are left out here: the scenarios on the stage test them.
TEST_F(BinderTest, TheRightButtonAndTheKeysReachTheControlAPointerAtRestDoesNot) {
  forms::MainForm& form = screens_.main;
  std::vector<std::string> heard;
  const auto hear = [&](auto& event, const char* what) {
    event.handle([&heard, what] { heard.emplace_back(what); });
  };
  hear(form.MyButton19.alternate, "other button");
  hear(form.Picture6.hover, "hover");
  hear(form.Combo5.click, "pick");
  form.Combo5.setLines({"1", "2", "3"});
  binder_.bind(form, main_);
  main_.show();

  QTest::mouseClick(&widget<QPushButton>(main_, "MyButton19"), Qt::RightButton);
  for (int twice = 0; twice < 2; ++twice) {
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(50, 50), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&widget<QWidget>(main_, "Picture6"), &move);
  }
  QTest::keyClick(&widget<QComboBox>(main_, "Combo5"), Qt::Key_Down);
  EXPECT_THAT(heard, ElementsAre("other button", "hover", "pick"));
}

TEST_F(BinderTest, AWriteFromCodeShowsAndComesBackAsNothing) {
  forms::MainForm& form = screens_.main;
  int events = 0;
  for (auto* event : {&form.Check8.click, &form.Combo5.click, &form.Command7.click}) {
    event->handle([&events] { ++events; });
  }
  form.Combo5.setLines({"1", "2", "3"});
  binder_.bind(form, main_);
  form.Combo5.text = "2";
  form.Combo5.addLine("4");
  form.Command7.caption = "A & B";
  form.Command7.enabled = false;
  form.Label44.size = 18;
  form.Check8.value = 2;
  EXPECT_EQ(events, 1) << "the check box's own code event, and nothing from the widgets";
  form.Combo5.index = 3;
  EXPECT_EQ(events, 2);

  const auto& combo = widget<QComboBox>(main_, "Combo5");
  EXPECT_EQ(combo.count(), 4);
  EXPECT_EQ(combo.currentText(), "4");
  EXPECT_EQ(widget<QPushButton>(main_, "Command7").text(), "A && B");
  EXPECT_FALSE(widget<QPushButton>(main_, "Command7").isEnabled());
  EXPECT_EQ(widget<QWidget>(main_, "Label44").property("pointSize").toInt(), 18);
  EXPECT_EQ(widget<QCheckBox>(main_, "Check8").checkState(), Qt::PartiallyChecked);
}

TEST_F(BinderTest, InputDuringABlockingSoundIsHandledBehindIt) {
  std::string pressed;
  desktop::LoopAlarm alarm(loop_);
  screens_.main.Command7.enabled = true;
  screens_.main.Command7.click.handle([&pressed] { pressed += "7"; });
  screens_.main.Command4.click.handle([&pressed] { pressed += "4"; });
  binder_.bind(screens_.main, main_);
  alarm.start();
  {
    const platform::EventLoop::Blocking blocking(loop_);
    for (const char* name : {"Command7", "Command4", "Command7", "Command4"}) {
      widget<QAbstractButton>(main_, name).click();
    }
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(pressed, "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == "7474"; }));
}

TEST_F(BinderTest, AMenuFollowsItsEntriesAndAFaultReachesTheRider) {
  std::string fault;
  loop_.onFault([&fault](const std::string& text) { fault = text; });
  screens_.main.mnsons.click.handle([] { throw std::runtime_error("plein"); });
  binder_.bind(screens_.main, main_);
  auto* action = main_.findChild<QAction*>("mnsons");
  ASSERT_NE(action, nullptr);
  screens_.main.mnsons.caption = "Sons";
  EXPECT_EQ(action->text(), "Sons");
  action->trigger();
  EXPECT_EQ(fault, "plein");
  screens_.main.mnsons.visible = false;
  EXPECT_FALSE(action->isVisible());
}

}  // namespace
