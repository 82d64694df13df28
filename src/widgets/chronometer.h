// The large digits of a ride, and the ring of the start countdown.
#pragma once

#include <QWidget>

namespace widgets {

// Two digits of the chronometer, with a colon before them.
class ChronoDigits final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString text READ text WRITE setText)
  Q_PROPERTY(bool leading MEMBER leading_)  // no colon, and dimmed while it reads "00"

 public:
  explicit ChronoDigits(QWidget* parent = nullptr);
  [[nodiscard]] QString text() const { return text_; }
  void setText(const QString& text);
  void setLeading(bool leading);
  // The size of the font, px at a scale of 1; 0: the usual one. Digits shrink where they have less room.
  void setSize(int size);
  [[nodiscard]] QSize sizeAt(int size) const;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QString text_ = QStringLiteral("00");
  bool leading_ = false;
  int size_ = 0;
};

// The seconds left before the start, in a ring that empties.
class CountdownRing final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString text READ text WRITE setText)

 public:
  explicit CountdownRing(QWidget* parent = nullptr);
  [[nodiscard]] QString text() const { return text_; }
  void setText(const QString& text);
  // How much of the ring is left, 0 to 1.
  void setShare(double share);
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QString text_;
  double share_ = 1;
};

}  // namespace widgets
