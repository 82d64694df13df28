// Tells when the pointer moves over the free ground of a panel, where no widget that matters lies.
#pragma once

#include <QObject>
#include <QPointF>
#include <functional>

class QWidget;

namespace widgets {

class FreeGround final : public QObject {
  Q_OBJECT
 public:
  // `taken` says which widgets of the panel, with all that they hold, are not free ground.
  FreeGround(QWidget& panel, const std::function<bool(const QWidget&)>& taken);

 signals:
  void crossed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& panel_;
  // At the last move: Qt also sends one to a widget that appears under a resting pointer.
  QPointF pointer_;
};

}  // namespace widgets
