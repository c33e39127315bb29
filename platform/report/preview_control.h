// The preview control: one page of a report at a zoom, in a scroll area that fills its parent.
// 100 % shows the page at its size on paper (the screen's logical resolution).
#pragma once

#include <QPointer>
#include <QScrollArea>

#include "platform/report/report.h"

namespace mv::report {

class TPreviewControl : public QScrollArea {
  Q_OBJECT

 public:
  explicit TPreviewControl(QWidget* parent = nullptr);
  ~TPreviewControl() override;

  // Shows pages of `report` (not owned; nullptr detaches), from page 1.
  void SetReport(TReport* report);
  TReport* Report() const { return report_; }

  // The page shown, 1-based (0 with no report or no page). SetPageNumber keeps `page` within
  // 1 ..= the page count.
  int PageNumber() const { return page_; }
  void SetPageNumber(int page);
  int PageCount() const;

  // The zoom in percent (1 ..= 1000; other values are clamped).
  int Zoom() const { return zoom_; }
  void SetZoom(int percent);
  // The zoom at which the page's width / the whole page fits the visible area.
  void ZoomToWidth();
  void ZoomToFit();
  // Paints the page again (after a page was recorded or the report finished).
  void UpdatePage();

 signals:
  void resized();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  class TPageView;
  QSizeF PagePoints() const;
  double PointsToPixels() const;
  void Relayout();

  QPointer<TReport> report_;
  TPageView* view_;
  int page_ = 0;
  int zoom_ = 100;
};

}  // namespace mv::report
