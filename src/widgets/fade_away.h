// Lets a panel fade out when it is hidden, unless the desktop wants no animations.
#pragma once

#include <QObject>
#include <QWidget>

namespace widgets {

class FadeAway final : public QObject {
  Q_OBJECT
 public:
  explicit FadeAway(QWidget& panel);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& panel_;
};

}  // namespace widgets
