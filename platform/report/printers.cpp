#include "platform/report/printers.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace mv::report {
namespace {

TPrinterSet* installed = nullptr;

}  // namespace

QStringList TSystemPrinters::Names() const {
  return QPrinterInfo::availablePrinterNames();
}

int TSystemPrinters::DefaultIndex() const {
  const QStringList names = Names();
  if (names.isEmpty()) return -1;
  const int index = static_cast<int>(names.indexOf(QPrinterInfo::defaultPrinterName()));
  return index >= 0 ? index : 0;
}

std::unique_ptr<QPrinter> TSystemPrinters::Open(int index) const {
  const QStringList names = Names();
  if (index < 0) index = DefaultIndex();
  if (index < 0 || index >= names.size()) return nullptr;
  auto printer =
      std::make_unique<QPrinter>(QPrinterInfo::printerInfo(names[index]), QPrinter::HighResolution);
  return printer;
}

std::unique_ptr<QPrinter> TPdfFilePrinter::Open(int index) const {
  if (index > 0) return nullptr;
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setOutputFormat(QPrinter::PdfFormat);
  printer->setOutputFileName(fileName_);
  return printer;
}

TPrinterSet& Printers() {
  static TSystemPrinters system;
  return installed != nullptr ? *installed : system;
}

void SetPrinters(TPrinterSet* printers) {
  installed = printers;
}

}  // namespace mv::report
