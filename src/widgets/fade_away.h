// A panel that is hidden fades out, where the desktop lets things move by themselves.
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
