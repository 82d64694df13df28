// A second of a ride draws once what it has changed, and a second without a change draws nothing.
#include <QLabel>
#include <QPaintEvent>

#include "desktop/windows_test_base.h"

namespace {

// What is drawn in a window while this lives, and how often.
class Watch final : public QObject {
 public:
  explicit Watch(QWidget& window) : window_(window) {
    QCoreApplication::instance()->installEventFilter(this);
  }

  [[nodiscard]] int times() const { return times_; }
  // The widgets drawn; those that only lie under one that has changed are not counted.
  [[nodiscard]] std::string drawn() const {
    QStringList names;
    for (const QWidget* widget : drawn_) {
      const bool under = std::any_of(drawn_.begin(), drawn_.end(), [&](const QWidget* other) {
        return other != widget && widget->isAncestorOf(other);
      });
      if (!under) names.append(widget->objectName());
    }
    names.sort();
    return names.join(' ').toStdString();
  }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (watched == &window_ && event->type() == QEvent::UpdateRequest) ++times_;
    if (event->type() == QEvent::Paint && widget != nullptr && widget->window() == &window_) {
      drawn_.insert(widget);
    }
    return false;
  }

  QWidget& window_;
  QSet<const QWidget*> drawn_;
  int times_ = 0;
};

class Repaint : public WindowsTestBase {
 protected:
  static void draw() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }
};

TEST_F(Repaint, DrawsASecondOfARideOnceAndNothingElse) {
  program_.run(support::composeTwoRows("Plat", "30", "Sprint", "30"));
  program_.run("press CreerCycle.MyButton5\nadvance 0.3\npress MainForm.MyButton3\nadvance 20");
  draw();
  // The seconds, the whole duration, the bar of the sequence and the place in the profile.
  const std::string changing = "Label40 Label6 rideProfile sequenceBar";
  for (int second = 1; second <= 3; ++second) {
    const Watch watch(windows_->window());
    program_.run("advance 1");
    draw();
    EXPECT_EQ(watch.times(), 1);
    EXPECT_EQ(watch.drawn(), changing);
  }
  program_.run("press MainForm.Command7\nadvance 1");
  draw();
  const Watch paused(windows_->window());
  program_.run("advance 30");
  draw();
  EXPECT_EQ(paused.drawn(), "");
}

TEST_F(Repaint, DrawsWhatChangesOutOfSightWhenItIsNextSeen) {
  program_.run(support::composeTwoRows("Plat", "30", "Sprint", "30"));
  settle();
  program_.run("press CreerCycle.MyButton5\nadvance 1");
  auto& total = widget<QLabel>(screens_.editor, "totalTime");
  const QString before = total.text();
  program_.list().setText(1, 10, "00:01:07");
  draw();
  EXPECT_EQ(total.text(), before);
  screens_.editor.show();
  EXPECT_EQ(total.text(), "00:01:07");
}

}  // namespace
