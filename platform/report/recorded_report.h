// A report whose pages are recorded once, as they are generated, into lists of drawing commands.
// A subclass records each page's body; what depends on the final page count (a footer "Page n of
// count") is drawn at every replay by PaintFrame, so no page is recorded twice.
#pragma once

#include <vector>

#include "platform/report/page_recording.h"
#include "platform/report/report.h"

namespace mv::report {

class TRecordedReport : public TReport {
  Q_OBJECT

 public:
  using TReport::TReport;

  int PageCount() const override { return static_cast<int>(pages_.size()); }
  void PaintPage(int page, QPainter& painter) const override;
  std::size_t RecordedBytes() const override;

 protected:
  // Gets ready to record from the first page.
  virtual void Begin() = 0;
  // Records page `page` (1-based) in points; false when there was nothing left to draw (the
  // page is then dropped and generation ends).
  virtual bool RecordPage(int page, TPageRecording& recording) = 0;
  // True once everything has been drawn.
  virtual bool Done() const = 0;
  // Draws what every replay of page `page` adds to its recorded body. `pageCount` is 0 while
  // generation goes on (the count is not known yet). Nothing by default.
  virtual void PaintFrame(int page, int pageCount, QPainter& painter) const;

  void Restart() final;
  bool GenerateStep() final;

 private:
  std::vector<TPageRecording> pages_;
};

}  // namespace mv::report
