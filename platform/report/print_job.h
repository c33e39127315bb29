// Printing and exporting a report: its recorded pages replayed onto a printer or into a PDF file.
#pragma once

#include <QString>

class QPagedPaintDevice;

namespace mv::report {

class TReport;
class TPrinterSet;

// Paints pages `first` ..= `last` of `report` (clamped to its pages) onto `device`, `copies`
// collated copies (at least one), each page on its own paper in points scaled to the device's
// resolution, telling the report of every page printed. Returns the number of sheets painted;
// 0 when there was no page or the device could not be painted on.
int RenderPages(TReport& report, QPagedPaintDevice& device, int first, int last, int copies);

// Prints `report` by its print settings (pages, copies, printer index, duplex) on a printer of
// `printers`, in the report's orientation, then tells the report it was printed. False, with
// nothing printed, when the printer does not exist or cannot be painted on.
[[nodiscard]] bool PrintReport(TReport& report, const TPrinterSet& printers);

// Writes every page of `report` into the PDF file `fileName` (UTF-16 path; an existing file is
// replaced), fonts embedded so that the text can be searched. False when the file cannot be
// written or the report has no page.
[[nodiscard]] bool ExportPdf(TReport& report, const QString& fileName);

}  // namespace mv::report
