// A large button with a drawing, whose caption may take two lines.
#pragma once

#include <QPushButton>

namespace widgets {

class StepButton final : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(QString picture MEMBER picture_)

 public:
  explicit StepButton(QWidget* parent = nullptr);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] bool textFits() const;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  [[nodiscard]] bool isTile() const;
  [[nodiscard]] QString caption() const;
  // Where the text stands, beside the drawing.
  [[nodiscard]] QRect textRoom() const;
  [[nodiscard]] int iconSide() const;

  QString picture_;
};

}  // namespace widgets
