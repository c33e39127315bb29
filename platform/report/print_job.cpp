#include "platform/report/print_job.h"

#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>

#include "platform/report/printers.h"
#include "platform/report/report.h"

namespace mv::report {
namespace {

// The paper of a page without margins: the report draws its own.
QPageLayout Paper(const TReport& report, int page) {
  QPageLayout layout = report.PageLayoutOf(page);
  layout.setMinimumMargins(QMarginsF(0, 0, 0, 0));
  layout.setMargins(QMarginsF(0, 0, 0, 0));
  return layout;
}

QPrinter::DuplexMode DuplexOf(TDuplex duplex) {
  switch (duplex) {
    case dpLongSide:
      return QPrinter::DuplexLongSide;
    case dpShortSide:
      return QPrinter::DuplexShortSide;
    case dpNone:
      break;
  }
  return QPrinter::DuplexNone;
}

}  // namespace

int RenderPages(TReport& report, QPagedPaintDevice& device, int first, int last, int copies) {
  first = std::max(first, 1);
  last = std::min(last, report.PageCount());
  if (first > last) return 0;
  device.setPageLayout(Paper(report, first));
  QPainter painter;
  if (!painter.begin(&device)) return 0;
  int sheets = 0;
  for (int copy = 0; copy < std::max(copies, 1); ++copy) {
    for (int page = first; page <= last; ++page) {
      if (sheets > 0) {
        device.setPageLayout(Paper(report, page));
        device.newPage();
      }
      painter.save();
      painter.scale(device.logicalDpiX() / 72.0, device.logicalDpiY() / 72.0);
      report.PaintPage(page, painter);
      painter.restore();
      ++sheets;
      report.NotifyPagePrinted(page);
    }
  }
  painter.end();
  return sheets;
}

bool PrintReport(TReport& report, const TPrinterSet& printers) {
  const TPrintSettings& settings = report.PrintSettings();
  std::unique_ptr<QPrinter> printer = printers.Open(settings.PrinterIndex);
  if (printer == nullptr) return false;
  printer->setFullPage(true);
  printer->setCopyCount(1);  // copies are painted here, collated, whatever the driver can do
  printer->setDuplex(DuplexOf(settings.Duplex));
  const int last = settings.LastPage > 0 ? settings.LastPage : report.PageCount();
  if (RenderPages(report, *printer, settings.FirstPage, last, settings.Copies) == 0) return false;
  report.NotifyPrinted();
  return true;
}

bool ExportPdf(TReport& report, const QString& fileName) {
  if (report.PageCount() == 0) return false;
  QPdfWriter writer(fileName);
  writer.setTitle(report.Title());
  writer.setCreator(QStringLiteral("mvcommon"));
  return RenderPages(report, writer, 1, report.PageCount(), 1) > 0;
}

}  // namespace mv::report
