#include "platform/report/preview_control.h"

#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "platform/report/report.h"

namespace mv::report {
namespace {

constexpr int kMinZoom = 1;
constexpr int kMaxZoom = 1000;
// Room around the page, in pixels.
constexpr int kBorder = 8;

}  // namespace

// The page itself: white paper with a frame, the page replayed at the control's zoom.
class TPreviewControl::TPageView : public QWidget {
 public:
  explicit TPageView(TPreviewControl& owner) : QWidget(&owner), owner_(owner) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Dark));
    if (owner_.report_ == nullptr || owner_.page_ < 1) return;
    const QRect paper = rect().adjusted(kBorder, kBorder, -kBorder, -kBorder);
    painter.fillRect(paper, Qt::white);
    painter.setPen(Qt::black);
    painter.drawRect(paper.adjusted(0, 0, -1, -1));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(paper.topLeft());
    const double scale = owner_.PointsToPixels() * owner_.zoom_ / 100.0;
    painter.scale(scale, scale);
    painter.setClipRect(QRectF(QPointF(0, 0), owner_.PagePoints()));
    owner_.report_->PaintPage(owner_.page_, painter);
  }

 private:
  TPreviewControl& owner_;
};

TPreviewControl::TPreviewControl(QWidget* parent)
    : QScrollArea(parent), view_(new TPageView(*this)) {
  setWidget(view_);
  setWidgetResizable(false);
  setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  setBackgroundRole(QPalette::Dark);
  Relayout();
}

TPreviewControl::~TPreviewControl() = default;

void TPreviewControl::SetReport(TReport* report) {
  report_ = report;
  page_ = PageCount() > 0 ? 1 : 0;
  Relayout();
}

int TPreviewControl::PageCount() const {
  return report_ != nullptr ? report_->PageCount() : 0;
}

void TPreviewControl::SetPageNumber(int page) {
  const int count = PageCount();
  page_ = count == 0 ? 0 : std::clamp(page, 1, count);
  Relayout();
  verticalScrollBar()->setValue(0);
}

void TPreviewControl::SetZoom(int percent) {
  zoom_ = std::clamp(percent, kMinZoom, kMaxZoom);
  Relayout();
}

QSizeF TPreviewControl::PagePoints() const {
  if (report_ == nullptr) return QSizeF(595, 842);
  return report_->PageLayoutOf(std::max(page_, 1)).fullRect(QPageLayout::Point).size();
}

double TPreviewControl::PointsToPixels() const {
  return logicalDpiX() / 72.0;
}

void TPreviewControl::ZoomToWidth() {
  const double width = viewport()->width() - 2 * kBorder - verticalScrollBar()->sizeHint().width();
  SetZoom(static_cast<int>(std::floor(width * 100 / (PagePoints().width() * PointsToPixels()))));
}

void TPreviewControl::ZoomToFit() {
  const QSize area = maximumViewportSize() - QSize(2 * kBorder, 2 * kBorder);
  const QSizeF page = PagePoints() * PointsToPixels();
  const double percent = std::min(area.width() / page.width(), area.height() / page.height()) * 100;
  SetZoom(static_cast<int>(std::floor(percent)));
}

void TPreviewControl::UpdatePage() {
  if (page_ == 0 && PageCount() > 0) page_ = 1;
  Relayout();
}

void TPreviewControl::Relayout() {
  const QSizeF page = PagePoints() * PointsToPixels() * zoom_ / 100.0;
  view_->resize(static_cast<int>(std::ceil(page.width())) + 2 * kBorder,
                static_cast<int>(std::ceil(page.height())) + 2 * kBorder);
  view_->update();
}

void TPreviewControl::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  emit resized();
}

}  // namespace mv::report
