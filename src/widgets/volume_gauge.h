// Shows a volume, 0 to 100 %, on a scale from too low to loud for a ride.
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
