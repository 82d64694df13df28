#include "desktop/qt_printer.h"

#include <QFile>
#include <QFileInfo>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <algorithm>

#include "platform/fault.h"
#include "widgets/page_painter.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::fromQt;
using widgets::paintGrid;
using widgets::paintLine;

using widgets::toQt;

namespace {

constexpr double paperMargin = 8;  // mm

QPrinterInfo systemPrinter() {
  const QPrinterInfo preferred = QPrinterInfo::defaultPrinter();
  if (!preferred.isNull()) return preferred;
  const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
  return all.isEmpty() ? QPrinterInfo() : all.first();
}

// Qt does not report a full disk while it draws; the file then lacks its last line.
bool isWhole(const QString& path) {
  QFile file(path);
  constexpr qint64 tail = 64;
  return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - tail)) &&
         file.read(tail).contains("%%EOF");
}

}  // namespace

QtPrinter::~QtPrinter() {
  drop();
}

bool QtPrinter::page() {
  if (declined_) return false;
  if (painter_.isActive()) {
    if (pageEnded_) {
      printer_->newPage();
      bottom_ = area().top();
    }
    pageEnded_ = false;
    return true;
  }
  const QPrinterInfo paper = systemPrinter();
  if (paper.isNull() && !askForFile()) {
    declined_ = true;
    return false;
  }
  printer_ = paper.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                            : std::make_unique<QPrinter>(paper, QPrinter::HighResolution);
  if (paper.isNull()) {
    printer_->setOutputFormat(QPrinter::PdfFormat);
    printer_->setOutputFileName(file_);
  }
  beginPaper();
  return true;
}

bool QtPrinter::askForFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const std::vector<std::string> chosen =
      dialogs_.chooseFiles({platform::FilePurpose::Save, "Aucune Imprimante : Enregistrer en PDF",
                            fromQt(folder), "Fichiers (PDF)|*.pdf", "Liste.pdf"});
  if (chosen.empty()) return false;
  file_ = toQt(chosen.front());
  if (!QFileInfo::exists(file_)) return true;
  return dialogs_.message({platform::MessageKind::Exclamation, platform::MessageButtons::OkCancel,
                           "Fichier Existant...",
                           "Le Fichier « " + chosen.front() + " » existe déjà, il sera Remplacé..."}) ==
         platform::Answer::Ok;
}

void QtPrinter::beginPaper() {
  printer_->setDocName(QStringLiteral("Ventoria"));
  printer_->setCreator(QStringLiteral("Ventoria"));
  printer_->setPageSize(QPageSize(QPageSize::A4));
  printer_->setPageOrientation(orientation_ == platform::PageOrientation::Landscape ? QPageLayout::Landscape
                                                                                    : QPageLayout::Portrait);
  printer_->setPageMargins(QMarginsF(paperMargin, paperMargin, paperMargin, paperMargin),
                           QPageLayout::Millimeter);
  printer_->setColorMode(mode_ == platform::ColourMode::Colour ? QPrinter::Color : QPrinter::GrayScale);
  if (file_.isEmpty() && quality_ == platform::PrintQuality::Draft) printer_->setResolution(150);
  if (!painter_.begin(printer_.get())) fail("accès refusé");
  pageEnded_ = false;
  bottom_ = area().top();
}

void QtPrinter::fail(const char* reason) {
  const QString target = file_.isEmpty() ? printer_->printerName() : file_;
  drop();
  const platform::FileFault fault("d'imprimer sur", fromQt(target), reason);
  dialogs_.message({platform::MessageKind::Critical, platform::MessageButtons::Ok, "Impression Impossible...",
                    fault.what()});
  throw fault;
}

QRectF QtPrinter::area() const {
  return {QPointF(0, 0), printer_->pageRect(QPrinter::DevicePixel).size()};
}

void QtPrinter::paintPicture(const platform::PageGrid& grid, int left, int top) {
  onPage_();
  if (!page()) return;
  const double unit = printer_->resolution() / 1440.0;
  bottom_ = paintGrid(painter_, area().adjusted(left * unit, top * unit, 0, 0), grid,
                      mode_ == platform::ColourMode::Colour);
}

void QtPrinter::printLine(const std::string& line) {
  if (!page()) return;
  bottom_ = paintLine(painter_, area(), bottom_, toQt(line));
}

void QtPrinter::endDocument() {
  if (!painter_.isActive()) return;
  pageEnded_ = true;
  if (file_.isEmpty()) close();
}

void QtPrinter::killDocument() {
  const bool begun = painter_.isActive();
  const QString file = file_;
  if (begun && file.isEmpty()) printer_->abort();
  drop();
  // Removes the incomplete file, but never a device that the rider has named.
  if (begun && QFileInfo(file).isFile()) QFile::remove(file);
}

void QtPrinter::finish() {
  if (painter_.isActive()) close();
  drop();
}

void QtPrinter::close() {
  const bool sent = painter_.end() && printer_->printerState() != QPrinter::Error;
  if (!sent) fail("l'imprimante ne répond plus");
  if (!file_.isEmpty() && !isWhole(file_)) fail("le fichier n'a pu être écrit en entier");
  drop();
}

void QtPrinter::drop() {
  if (painter_.isActive()) painter_.end();
  printer_.reset();
  file_.clear();
  declined_ = false;
}

}  // namespace desktop
