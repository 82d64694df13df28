// Draws a text as large as its place allows, up to a largest size: for the values of a ride.
#pragma once

#include <QWidget>

namespace widgets {

class FitLabel : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString text READ text WRITE setText)
  Q_PROPERTY(QString unit MEMBER unit_)  // drawn small behind the text
  Q_PROPERTY(int px MEMBER px_)          // the largest font size at a scale of 1
  Q_PROPERTY(QString tone MEMBER tone_)  // "text", "second" or "wrong"
  Q_PROPERTY(bool centred MEMBER centred_)

 public:
  explicit FitLabel(QWidget* parent = nullptr);
  [[nodiscard]] QString text() const { return text_; }
  void setText(const QString& text);
  // Whether the text fits, at the smallest size if need be.
  [[nodiscard]] bool textFits() const;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;
  void setUnit(const QString& unit) { unit_ = unit; }
  void setPx(int px) { px_ = px; }
  void setTone(const QString& tone) { tone_ = tone; }

 private:
  [[nodiscard]] QFont fitted(const QRect& into) const;
  [[nodiscard]] bool fits(const QFont& font, const QRect& into) const;
  // The room that the unit leaves to the text.
  [[nodiscard]] QRect textRoom() const;

  QString text_;
  QString unit_;
  QString tone_;
  int px_ = 40;
  bool centred_ = false;
};

// The heart-rate target of a sequence. With a size of 18 points the form shows a message instead.
class HeartTarget final : public FitLabel {
  Q_OBJECT
  Q_PROPERTY(int pointSize READ pointSize WRITE setPointSize)

 public:
  explicit HeartTarget(QWidget* parent = nullptr);
  [[nodiscard]] int pointSize() const { return pointSize_; }
  void setPointSize(int points);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int pointSize_ = 80;
};

}  // namespace widgets
