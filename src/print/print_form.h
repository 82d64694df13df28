// The print form: copies the editor's list and sends it to the printer, each page a document of its own.
#pragma once

#include "context/context.h"
#include "platform/printer.h"

namespace print {

inline constexpr int rowsPerPage = 35;

// The page that begins with a row of the form's grid.
[[nodiscard]] platform::PageGrid pageFrom(const forms::ImprimerTQ1& form, int firstRow);

class PrintForm {
 public:
  explicit PrintForm(const context::Context& context);

 private:
  void prepare();
  void open();
  void loadList();
  void loadRow(int row);
  void printList();
  void printPage(int firstRow);
  void giveUp(bool tooLarge);
  void leave();
  // The grid's rows including the head.
  [[nodiscard]] int gridRows() const { return print_.Grid.rowCount() + 1; }

  context::Context context_;
  forms::ImprimerTQ1& print_;
  platform::Printer& printer_;
  int page_ = 0;
  int pages_ = 0;
};

}  // namespace print
