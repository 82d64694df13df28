// The windows over the whole program: each form has its place, and what a person does there arrives.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <fstream>

#include "desktop/windows_test_base.h"
#include "widgets/check_list.h"

namespace {

class ScreensTest : public WindowsTestBase {};

// That each control stands once on its page needs no check here: the windows throw if not.
TEST_F(ScreensTest, EveryFormButThePlayerHasAPlace) {
  for (const platform::Form* form : screens_.all()) {
    EXPECT_EQ(windows_->windowOf(*form) == nullptr, form == &screens_.player) << form->name();
  }
}

TEST_F(ScreensTest, APageCoversTheOneBelowUntilItsFormCloses) {
  const auto shown = [&](const platform::Form& form) { return windows_->page(form)->isVisible(); };
  screens_.announcements.show();
  EXPECT_TRUE(shown(screens_.announcements));
  EXPECT_FALSE(shown(screens_.main));
  screens_.announcements.hide();
  EXPECT_TRUE(shown(screens_.main));
}

TEST_F(ScreensTest, ALowerFormHasAWindowThatClosesByItsOwnWayOut) {
  for (platform::Form* form :
       std::initializer_list<platform::Form*>{&screens_.volume, &screens_.print, &screens_.films}) {
    form->show();
    QWidget* window = windows_->windowOf(*form);
    EXPECT_TRUE(window->isVisible()) << form->name();
    EXPECT_NE(window, &windows_->window());
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(form->loaded()) << form->name();
    EXPECT_FALSE(window->isVisible()) << form->name();
  }
}

TEST_F(ScreensTest, TheListOfMusicIsTickedByItsBoxesAndBySpace) {
  for (int i = 0; i < 5000; ++i)
    program_.memory.put("/d/ambiances/" + std::to_string(10000 + i) + ".mp3", "");
  forms::EnrUneAnnonce& form = screens_.announcements;
  screens_.main.mnambiance.click();
  settle();
  widget<QPushButton>(form, "Command8").click();
  settle();
  auto& list = widget<widgets::CheckList>(form, "ListView1");
  EXPECT_EQ(list.model()->rowCount(), 5000);

  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.boxRect(2).center());
  EXPECT_TRUE(form.ListView1.checked(2));
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(form.MyButton12.caption.get(), "Démarrer la Liste des (2) Musiques Sélectionnées");
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_FALSE(form.ListView1.checked(3));
  EXPECT_EQ(form.MyButton12.caption.get(), "Démarrer la Liste des (1) Musiques Sélectionnées");

  QTest::mouseClick(list.viewport(), Qt::RightButton, {}, list.boxRect(2).center());
  EXPECT_TRUE(form.mnEcout.enabled && !form.mnsupress.enabled);
  QTest::mouseClick(list.viewport(), Qt::RightButton, {}, list.cellRect(2, 2).center());
  EXPECT_TRUE(form.mnsupress.enabled && !form.mnEcout.enabled);
}

// Notes the controls that are painted.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget& page) {
    for (QWidget* widget : page.findChildren<QWidget*>()) widget->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted.insert(watched->objectName().toStdString());
    return false;
  }
  std::set<std::string> painted;
};

TEST_F(ScreensTest, ATickPaintsOnlyWhatChanges) {
  screens_.main.Combo3.pick(30);
  screens_.main.MyButton1.click();
  program_.run("advance 0.2\npress MainForm.MyButton3\nadvance 5.5");
  settle();
  settle();  // the first layout of the ride's page paints everything
  PaintWatch watch(*windows_->page(screens_.main));
  program_.run("advance 1");
  settle();
  EXPECT_TRUE(watch.painted.contains("Label6"));
  for (const char* still : {"Label4", "Label5", "Label11", "MyFrame1", "Command7", "header"}) {
    EXPECT_FALSE(watch.painted.contains(still)) << still;
  }
}

TEST_F(ScreensTest, TheRidesPanelFadesOnlyWhereThingsMayMove) {
  auto& panel = widget<QFrame>(screens_.main, "Picture6");
  for (const bool moving : {false, true}) {
    QApplication::setEffectEnabled(Qt::UI_General, moving);
    screens_.main.Picture6.visible = true;
    settle();
    screens_.main.Picture6.visible = false;
    EXPECT_FALSE(panel.isVisible());
    const auto fading = panel.parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_EQ(!fading.isEmpty(), moving);
  }
  QApplication::setEffectEnabled(Qt::UI_General, false);
}

TEST_F(ScreensTest, ATextThatLooksLikeMarkupStaysOneInATip) {
  screens_.editor.ListView1.toolTip = "<b>Col</b>";
  EXPECT_THAT(widget<QWidget>(screens_.editor, "ListView1").toolTip().toStdString(),
              testing::HasSubstr("&lt;b&gt;Col"));
}

TEST_F(ScreensTest, WhatHasTheKeyboardShowsIt) {
  screens_.main.MyButton5.click();
  program_.run("advance 2");
  for (platform::Form* form :
       std::initializer_list<platform::Form*>{&screens_.editor, &screens_.announcements, &screens_.volume,
                                              &screens_.print, &screens_.films, &screens_.main}) {
    form->show();
    settle();
    QWidget& page = *windows_->page(*form);
    page.window()->activateWindow();
    for (QWidget* widget : page.findChildren<QWidget*>()) {
      const bool takesKeys = widget->isVisible() && widget->isEnabled() &&
                             (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
      if (!takesKeys || widget->objectName().isEmpty()) continue;
      page.setFocus();
      settle();
      const QImage before = widget->grab().toImage();
      widget->setFocus();
      settle();
      if (!widget->hasFocus()) continue;
      EXPECT_NE(widget->grab().toImage(), before)
          << form->name() << '.' << widget->objectName().toStdString();
    }
  }
}

TEST_F(ScreensTest, TheHelpIsPulledOutOfItsRowAndPutBack) {
  screens_.main.MyButton5.click();
  settle();
  auto& panel = widget<QFrame>(screens_.editor, "Picture3");
  auto& title = widget<QLabel>(screens_.editor, "Label25");
  QWidget* page = windows_->page(screens_.editor);
  const QWidget* row = panel.parentWidget();
  const auto drag = [&](const QPoint& by) {
    const QPoint from = title.rect().center();
    QTest::mousePress(&title, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step) {
      const QPoint to = title.mapToGlobal(from) + by / 4;
      QMouseEvent move(QEvent::MouseMove, title.mapFromGlobal(to), to, Qt::NoButton, Qt::LeftButton, {});
      QApplication::sendEvent(&title, &move);
    }
    QTest::mouseRelease(&title, Qt::LeftButton, {}, from);
    settle();
  };
  drag({200, -400});
  EXPECT_EQ(panel.parentWidget(), page);
  EXPECT_TRUE(page->rect().contains(panel.geometry()));
  EXPECT_THAT(screens_.editor.Label23.caption.get(), testing::StartsWith("Vous pouvez me"));
  const int high = panel.height();
  screens_.editor.Label23.caption = "court";
  settle();
  EXPECT_LT(panel.height(), high);

  drag({5000, 5000});
  EXPECT_TRUE(page->rect().contains(panel.geometry())) << "the panel has left the page";
  QTest::mouseDClick(&title, Qt::LeftButton);
  settle();
  EXPECT_EQ(panel.parentWidget(), row);
}

TEST_F(ScreensTest, TheCalculatorsHelpGoesAtItsFreeGroundAndByEscape) {
  forms::CreerCycle& form = screens_.editor;
  screens_.main.MyButton5.click();
  form.MyButton25.click();
  settle();
  auto& mark = widget<QPushButton>(form, "MyButton26");
  QWidget& strip = *mark.parentWidget()->parentWidget();
  const auto move = [&](QWidget& over, const QPoint& at) {
    for (const QPoint& step : {QPoint(1, 0), QPoint(0, 0)}) QTest::mouseMove(&over, at + step);
    settle();
    return form.Image11.visible.get();
  };
  const std::tuple<const char*, QWidget*, QPoint, bool> places[] = {
      {"the button", &mark, mark.rect().center(), false},
      {"a box", &widget<QWidget>(form, "Combo8"), {9, 9}, false},
      {"the text", &widget<QWidget>(form, "Label44"), {9, 9}, false},
      {"the panel", &widget<QWidget>(form, "Picture8"), {9, 9}, true},
      {"a strip on it", &strip, {5, 5}, true},
      {"a row's words", mark.parentWidget()->findChild<QLabel*>(), {5, 5}, true}};
  for (const auto& [what, over, at, goes] : places) {
    mark.click();
    EXPECT_EQ(move(*over, at), goes) << what;
  }
  // The help buttons of the two rates stay when their boxes are hidden.
  form.Combo8.index = 1;
  settle();
  EXPECT_TRUE(mark.isVisible() && !widget<QWidget>(form, "Combo11").isVisible());
  mark.click();
  mark.setFocus();
  QTest::keyClick(&mark, Qt::Key_Escape);
  EXPECT_TRUE(form.Image11.visible && form.Picture8.visible);
}

TEST_F(ScreensTest, FilesFromOutsideWaitInTheirOrderForADialogToClose) {
  std::ifstream data(VENTORIA_SOURCE_DIR "/tests/data/Essai.tq2", std::ios::binary);
  const std::string session{std::istreambuf_iterator<char>(data), {}};
  for (const char* name : {"/d/un.tq2", "/d/deux.tq2"}) program_.memory.put(name, session);
  screens_.main.MyButton5.click();
  const int before = program_.list().rowCount();
  QDialog dialog(&windows_->window());
  dialog.setModal(true);
  dialog.show();
  for (const char* name : {"/d/un.tq2", "/d/deux.tq2"}) windows_->addSession(name);
  QTest::qWait(60);
  EXPECT_EQ(program_.list().rowCount(), before);
  dialog.hide();
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return screens_.editor.Label8.caption == "Dernière Séance Ajoutée (deux)"; }));
  EXPECT_EQ(program_.list().rowCount(), before + 1);  // a row of each, and the unfinished one is gone
}

TEST(FirstWindow, FitsItsScreenWithItsFrame) {
  desktop::MainWindow window(widgets::ThemeMode::Dark);
  window.showFitting();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  const QRect room = window.screen()->availableGeometry();
  EXPECT_LT(room.width(), 1280);
  EXPECT_TRUE(room.contains(window.frameGeometry()));
}

TEST_F(ScreensTest, OptionsAndSlidersFollowTheirFormAndMoveIt) {
  forms::ImprimerTQ1& print = screens_.print;
  print.show();
  auto& colour = widget<QRadioButton>(print, "Option1");
  auto& monochrome = widget<QRadioButton>(print, "Option2");
  EXPECT_TRUE(colour.isChecked());
  monochrome.click();
  EXPECT_FALSE(print.Option1.value);
  EXPECT_FALSE(colour.isChecked());
  monochrome.click();  // stays on
  EXPECT_TRUE(print.Option2.value && monochrome.isChecked());

  auto& level = widget<QSlider>(screens_.announcements, "VScroll1");
  screens_.announcements.VScroll1.value = 11;
  EXPECT_EQ(level.sliderPosition(), 11);
  level.triggerAction(QAbstractSlider::SliderToMinimum);
  EXPECT_EQ(screens_.announcements.VScroll1.value, 1);
}

}  // namespace
