// The free ground of a panel: tells when the pointer moves where the panel shows nothing but itself.
#pragma once

#include <QObject>
#include <QPointF>
#include <functional>

class QWidget;

namespace widgets {

class FreeGround final : public QObject {
  Q_OBJECT
 public:
  // `taken` tells which widgets of the panel are no ground, with all that they hold.
  FreeGround(QWidget& panel, const std::function<bool(const QWidget&)>& taken);

 signals:
  void crossed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& panel_;
  QPointF pointer_;  // at the last move: a widget that appears under a resting pointer gets one, too
};

}  // namespace widgets
