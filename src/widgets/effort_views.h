// Widgets that show a session's efforts by colour and height: a chip beside a word, the bar of the present
// sequence, and the profile of the whole session.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "model/effort_family.h"
#include "model/heart_zone.h"

namespace widgets {

class EffortChip final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int px MEMBER px_)  // its height at a scale of 1

 public:
  explicit EffortChip(QWidget* parent = nullptr);
  void show(model::EffortFamily family, bool any = true);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  model::EffortFamily family_ = model::EffortFamily::Endurance;
  bool any_ = false;
  int px_ = 44;
};

class SequenceBar final : public QWidget {
  Q_OBJECT
 public:
  explicit SequenceBar(QWidget* parent = nullptr);
  // `share` of the sequence is over, 0 to 1.
  void show(model::EffortFamily family, double share);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  model::EffortFamily family_ = model::EffortFamily::Endurance;
  double share_ = 0;
};

struct ProfileStep {
  std::string kind;
  int seconds = 0;
  std::string target;
  int row = 0;     // of the list, selected by a press on the bar
  int excess = 0;  // s by which its announcements are longer than itself; marked, and told in the tip
  bool operator==(const ProfileStep&) const = default;
};

class SessionProfile final : public QWidget {
  Q_OBJECT
 public:
  explicit SessionProfile(QWidget* parent = nullptr);
  void setSteps(std::vector<ProfileStep> steps);
  [[nodiscard]] const std::vector<ProfileStep>& steps() const { return steps_; }
  // Marks the present place, so many seconds into a step; a step of -1 takes the mark away.
  void setPlace(int step, double seconds);
  void selectRow(int row);
  void setClickable(bool clickable);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 signals:
  void rowPressed(int row);

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void layOut();
  // Where the mark is, px.
  [[nodiscard]] double markX() const;
  [[nodiscard]] QRect markRect() const;
  [[nodiscard]] int stepAt(const QPointF& point) const;

  std::vector<ProfileStep> steps_;
  std::vector<QRectF> bars_;
  int place_ = -1;
  double placeSeconds_ = 0;
  int selectedRow_ = 0;
  bool clickable_ = false;
};

// A band from 40 to 220 beats a minute with the part of a heart-rate zone coloured; an empty zone has none.
class ZoneBand final : public QWidget {
  Q_OBJECT
 public:
  explicit ZoneBand(QWidget* parent = nullptr);
  void show(const model::HeartZone& zone, const QColor& colour);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  model::HeartZone zone_;
  QColor colour_;
};

}  // namespace widgets
