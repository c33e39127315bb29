#include "platform/report/composite_report.h"

namespace mv::report {

int TCompositeReport::PageCount() const {
  int count = 0;
  for (const TReport* report : reports_) count += report->PageCount();
  return count;
}

std::pair<TReport*, int> TCompositeReport::Locate(int page) const {
  if (page < 1) return {nullptr, 0};
  for (TReport* report : reports_) {
    if (page <= report->PageCount()) return {report, page};
    page -= report->PageCount();
  }
  return {nullptr, 0};
}

void TCompositeReport::PaintPage(int page, QPainter& painter) const {
  if (auto [report, inner] = Locate(page); report != nullptr) report->PaintPage(inner, painter);
}

QPageLayout TCompositeReport::PageLayoutOf(int page) const {
  auto [report, inner] = Locate(page);
  return report != nullptr ? report->PageLayoutOf(inner) : PageLayout();
}

std::size_t TCompositeReport::RecordedBytes() const {
  std::size_t bytes = 0;
  for (const TReport* report : reports_) bytes += report->RecordedBytes();
  return bytes;
}

void TCompositeReport::Restart() {
  current_ = 0;
  if (!reports_.empty()) reports_.front()->Restart();
}

bool TCompositeReport::GenerateStep() {
  while (current_ < reports_.size()) {
    TReport& report = *reports_[current_];
    report.status_ = rsGenerating;
    if (report.GenerateStep()) {
      emit report.pageAvailable(report.PageCount());
      return true;
    }
    report.Finish();
    if (++current_ < reports_.size()) reports_[current_]->Restart();
  }
  return false;
}

int TCompositeReport::WorkDone() const {
  if (reports_.empty()) return 0;
  const int inCurrent = current_ < reports_.size() ? reports_[current_]->WorkDone() : 0;
  return static_cast<int>((current_ * 100 + static_cast<std::size_t>(inCurrent)) / reports_.size());
}

}  // namespace mv::report
