// A report: pages generated progressively on the user-interface thread (a few at each turn of the
// event loop, so windows stay responsive), then replayed as often as needed onto any painter in
// page coordinates of points (1/72 inch, origin at the page's top left corner).
#pragma once

#include <QObject>
#include <QPageLayout>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <cstddef>

class QPainter;

namespace mv::report {

class TCompositeReport;

enum TReportStatus { rsReady, rsGenerating, rsFinished };

// How the preview first shows the report: fit the whole page, fit the page's width, or the
// report's own zoom percentage.
enum TZoomSetting { zsFitPage = 0, zsPageWidth = 1, zsPercent = 2 };

enum TDuplex { dpNone, dpLongSide, dpShortSide };

// What a print of the report covers: pages FirstPage ..= LastPage (1-based; LastPage 0 = the
// last page), Copies collated copies, on printer PrinterIndex of the printer set (-1 = the
// default printer), with Duplex.
struct TPrintSettings {
  int FirstPage = 1;
  int LastPage = 0;
  int Copies = 1;
  int PrinterIndex = -1;
  TDuplex Duplex = dpNone;
};

class TReport : public QObject {
  Q_OBJECT

 public:
  explicit TReport(QObject* parent = nullptr);
  ~TReport() override;

  // The title a preview shows as its caption (UTF-16; may be empty).
  const QString& Title() const { return title_; }
  void SetTitle(const QString& title) { title_ = title; }

  // The preview's first zoom: zsPercent uses ZoomPercent (clamped to 1 ..= 1000 when applied).
  TZoomSetting InitialZoom() const { return initialZoom_; }
  void SetInitialZoom(TZoomSetting zoom) { initialZoom_ = zoom; }
  int ZoomPercent() const { return zoomPercent_; }
  void SetZoomPercent(int percent) { zoomPercent_ = percent; }

  // The paper and its orientation, A4 portrait until set. Changing them after generation has
  // started changes the size pages are printed on, not their recorded content.
  QPageLayout::Orientation Orientation() const { return layout_.orientation(); }
  void SetOrientation(QPageLayout::Orientation orientation) { layout_.setOrientation(orientation); }
  const QPageLayout& PageLayout() const { return layout_; }
  void SetPageSize(const QPageSize& size) { layout_.setPageSize(size); }
  // The size of a page in points, as the orientation turns it.
  QSizeF PageSizePoints() const { return layout_.fullRect(QPageLayout::Point).size(); }

  TPrintSettings& PrintSettings() { return printSettings_; }
  const TPrintSettings& PrintSettings() const { return printSettings_; }

  // Starts generating from the first page, one slice of pages per turn of the event loop; returns
  // at once. Pages of an earlier run are dropped. Nothing happens while a run is under way.
  void Start();
  // Generates every page now, without returning to the event loop (as Start, to the end).
  void GenerateAll();
  TReportStatus Status() const { return status_; }
  // Percent of the work done, 100 once finished.
  int Progress() const { return progress_; }

  // Pages recorded so far.
  virtual int PageCount() const = 0;
  // Replays page `page` (1-based; nothing outside 1 ..= PageCount) onto `painter`, whose
  // coordinates are points of the page.
  virtual void PaintPage(int page, QPainter& painter) const = 0;
  // The paper of page `page`: the report's own unless the page comes from another report.
  virtual QPageLayout PageLayoutOf(int page) const;
  // Bytes held by the recorded pages.
  virtual std::size_t RecordedBytes() const = 0;

  // Prints are told through these: after each printed page and after a whole print.
  void NotifyPagePrinted(int page) { emit pagePrinted(page); }
  void NotifyPrinted() { emit printed(); }

 signals:
  // The percent of work done changed (also 100 when generation ends).
  void progressChanged(int percent);
  // A page was recorded; `pageCount` pages are available.
  void pageAvailable(int pageCount);
  void finished();
  void pagePrinted(int page);
  void printed();

 protected:
  // Drops every recorded page and gets ready to generate from the first.
  virtual void Restart() = 0;
  // Records the next page, if any; false once no page is left (then nothing was recorded).
  virtual bool GenerateStep() = 0;
  // The percent done while generating, 0 ..= 99.
  virtual int WorkDone() const = 0;

 private:
  friend class TCompositeReport;
  void RunSlice();
  void Finish();
  void SetProgress(int percent);

  QString title_;
  TZoomSetting initialZoom_ = zsPageWidth;
  int zoomPercent_ = 100;
  QPageLayout layout_;
  TPrintSettings printSettings_;
  TReportStatus status_ = rsReady;
  int progress_ = 0;
  int run_ = 0;
};

}  // namespace mv::report
