#include "platform/report/recorded_report.h"

#include <QPainter>

namespace mv::report {

void TRecordedReport::PaintPage(int page, QPainter& painter) const {
  if (page < 1 || page > PageCount()) return;
  pages_[static_cast<std::size_t>(page - 1)].Play(painter);
  painter.save();
  PaintFrame(page, Status() == rsFinished ? PageCount() : 0, painter);
  painter.restore();
}

std::size_t TRecordedReport::RecordedBytes() const {
  std::size_t bytes = pages_.capacity() * sizeof(TPageRecording);
  for (const TPageRecording& page : pages_) bytes += page.Bytes();
  return bytes;
}

void TRecordedReport::PaintFrame(int, int, QPainter&) const {}

void TRecordedReport::Restart() {
  pages_.clear();
  Begin();
}

bool TRecordedReport::GenerateStep() {
  if (Done()) return false;
  TPageRecording recording;
  if (!RecordPage(PageCount() + 1, recording)) return false;
  pages_.push_back(std::move(recording));
  return true;
}

}  // namespace mv::report
