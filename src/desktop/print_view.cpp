#include "desktop/print_view.h"

#include "print/print_form.h"
#include "ui_imprimer_tq1.h"

namespace desktop {

PrintView::PrintView(forms::ImprimerTQ1& form, QWidget& page)
    : print_(form), ui_(std::make_unique<Ui::ImprimerTQ1>()) {
  ui_->setupUi(&page);
  pending_.setSingleShot(true);
  pending_.setInterval(0);
  connect(&pending_, &QTimer::timeout, this, &PrintView::refresh);
  const auto later = [this] {
    if (!pending_.isActive()) pending_.start();
  };
  form.Grid.watchGrid([this, later](const platform::GridChange&) {
    listMoved_ = true;
    later();
  });
  form.Option1.watch([later](platform::Component&, platform::Prop) { later(); });
}

PrintView::~PrintView() = default;

void PrintView::refresh() {
  pending_.stop();
  ui_->Grid->setColoured(print_.Option1.value);
  if (!std::exchange(listMoved_, false)) return;
  std::vector<platform::PageGrid> pages;
  const int rows = print_.Grid.rowCount();
  for (int row = 1; rows > 0 && row <= rows + 1; row += print::rowsPerPage) {
    pages.push_back(print::pageFrom(print_, row));
  }
  ui_->Grid->setPages(std::move(pages));
}

}  // namespace desktop
