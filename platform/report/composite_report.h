// Several reports printed as one: their pages one after the other, generated in turn. Each page
// keeps its own report's paper, frame and numbering.
#pragma once

#include <vector>

#include "platform/report/report.h"

namespace mv::report {

class TCompositeReport : public TReport {
  Q_OBJECT

 public:
  using TReport::TReport;

  // Appends `report` (not owned; it must outlive this report). Its pages follow those of the
  // reports added before it.
  void Add(TReport& report) { reports_.push_back(&report); }
  const std::vector<TReport*>& Reports() const { return reports_; }

  int PageCount() const override;
  void PaintPage(int page, QPainter& painter) const override;
  QPageLayout PageLayoutOf(int page) const override;
  std::size_t RecordedBytes() const override;
  // The report that holds page `page` of the whole and that page's number in it; {nullptr, 0}
  // outside 1 ..= PageCount.
  std::pair<TReport*, int> Locate(int page) const;

 protected:
  void Restart() override;
  bool GenerateStep() override;
  int WorkDone() const override;

 private:
  std::vector<TReport*> reports_;
  std::size_t current_ = 0;
};

}  // namespace mv::report
