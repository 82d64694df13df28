// A label that shortens a text too long for its place, and marks the cut with an ellipsis. A head may stand
// before the text, bold and whole.
#pragma once

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>

namespace widgets {

class ElidedLabel final : public QLabel {
  Q_OBJECT
 public:
  explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  }
  void setHead(const QString& head) {
    if (head_ == head) return;
    head_ = head;
    update();
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return {40, QLabel::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const int flags = static_cast<int>(alignment()) | Qt::TextSingleLine;
    QRect place = rect();
    if (!head_.isEmpty()) {
      QFont bold = font();
      bold.setBold(true);
      painter.setFont(bold);
      painter.setPen(QGuiApplication::palette().color(QPalette::WindowText));
      painter.drawText(place, flags, head_);
      place.setLeft(QFontMetrics(bold).horizontalAdvance(head_));
      painter.setFont(font());
    }
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(place, flags, fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
  }

 private:
  QString head_;
};

}  // namespace widgets
