#include "widgets/page_preview.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "widgets/page_painter.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

// A landscape A4 sheet, in millimetres.
constexpr double sheetWidth = 297;
constexpr double sheetHeight = 210;
constexpr double margin = 10;
constexpr double inch = 25.4;

}  // namespace

PagePreview::PagePreview(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setAutoFillBackground(false);
}

void PagePreview::setPages(std::vector<platform::PageGrid> pages) {
  pages_ = std::move(pages);
  layOut();
}

void PagePreview::setColoured(bool coloured) {
  if (coloured_ == coloured) return;
  coloured_ = coloured;
  viewport()->update();
}

QSize PagePreview::sheet() const {
  // As wide as there is room, unless the sheet would then be higher than the view.
  const double wide = std::min<double>(viewport()->width() - dp(this, 4),
                                       (viewport()->height() - dp(this, 4)) * sheetWidth / sheetHeight);
  return {static_cast<int>(wide), static_cast<int>(wide * sheetHeight / sheetWidth)};
}

int PagePreview::gap() const {
  return dp(this, 16);
}

int PagePreview::step() const {
  return sheet().height() + gap();
}

void PagePreview::layOut() {
  const int all = step() * static_cast<int>(pages_.size()) - gap() + dp(this, 4);
  verticalScrollBar()->setRange(0, std::max(0, all - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(dp(this, 48));
  viewport()->update();
}

void PagePreview::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  layOut();
}

void PagePreview::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void PagePreview::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

void PagePreview::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  const QSize size = sheet();
  const double dots = painter.device()->logicalDpiX() / inch;  // per millimetre of paper
  int top = dp(this, 2) - verticalScrollBar()->value();
  for (const platform::PageGrid& page : pages_) {
    const QRect paper(QPoint((viewport()->width() - size.width()) / 2, top), size);
    top += step();
    if (!paper.intersects(viewport()->rect())) continue;
    painter.setPen(QPen(QGuiApplication::palette().color(role::line), 1));
    painter.setBrush(Qt::white);
    painter.drawRect(paper);
    painter.setBrush(Qt::NoBrush);
    painter.save();
    painter.translate(paper.topLeft());
    painter.scale(size.width() / (sheetWidth * dots), size.height() / (sheetHeight * dots));
    paintGrid(painter,
              QRectF(margin * dots, margin * dots, (sheetWidth - 2 * margin) * dots,
                     (sheetHeight - 2 * margin) * dots),
              page, coloured_);
    painter.restore();
  }
  if (!hasFocus()) return;
  painter.setPen(QPen(QGuiApplication::palette().color(role::accent), 2));
  painter.drawRoundedRect(viewport()->rect().adjusted(1, 1, -1, -1), dp(this, 8), dp(this, 8));
}

}  // namespace widgets
