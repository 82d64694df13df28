// A label that shortens a text too long for its place, and marks the cut with an ellipsis.
#pragma once

#include <QLabel>
#include <QPainter>

namespace widgets {

class ElidedLabel final : public QLabel {
  Q_OBJECT
 public:
  explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return {40, QLabel::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
  }
};

}  // namespace widgets
