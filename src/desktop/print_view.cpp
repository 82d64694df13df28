#include "desktop/print_view.h"

#include "print/print_form.h"
#include "ui_imprimer_tq1.h"

namespace desktop {

PrintView::PrintView(forms::ImprimerTQ1& form, QWidget& page)
    : FormView(page), print_(form), ui_(std::make_unique<Ui::ImprimerTQ1>()) {
  ui_->setupUi(&page);
  form.Grid.watchGrid([this](const platform::GridChange&) {
    listMoved_ = true;
    refreshSoon();
  });
  follow(form.Option1);
}

PrintView::~PrintView() = default;

void PrintView::draw() {
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
