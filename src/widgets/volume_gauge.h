// Where a volume stands among those that suit a ride: too low, low, right, loud.
#pragma once

#include <QWidget>

namespace widgets {

class VolumeGauge final : public QWidget {
  Q_OBJECT
 public:
  explicit VolumeGauge(QWidget* parent = nullptr);
  void setPercent(int percent);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  int percent_ = 0;
};

}  // namespace widgets
