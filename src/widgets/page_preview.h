// The pages of a list as they will come out of the printer, one below the other.
#pragma once

#include <QAbstractScrollArea>
#include <vector>

#include "platform/printer.h"

namespace widgets {

class PagePreview final : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit PagePreview(QWidget* parent = nullptr);
  void setPages(std::vector<platform::PageGrid> pages);
  void setColoured(bool coloured);

 protected:
  void paintEvent(QPaintEvent*) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void layOut();
  [[nodiscard]] QSize sheet() const;
  [[nodiscard]] int gap() const;
  [[nodiscard]] int step() const;

  std::vector<platform::PageGrid> pages_;
  bool coloured_ = true;
};

}  // namespace widgets
