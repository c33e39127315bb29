#include "platform/report/report.h"

#include <QElapsedTimer>
#include <QMarginsF>
#include <QPageSize>
#include <QTimer>
#include <algorithm>

namespace mv::report {
namespace {

// One slice of generation: pages are recorded until this much time has passed, then the event
// loop gets its turn (input, painting, the preview's timer).
constexpr qint64 kSliceMs = 15;

}  // namespace

TReport::TReport(QObject* parent)
    : QObject(parent),
      layout_(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)) {}

TReport::~TReport() = default;

QPageLayout TReport::PageLayoutOf(int) const {
  return layout_;
}

void TReport::Start() {
  if (status_ == rsGenerating) return;
  Restart();
  status_ = rsGenerating;
  progress_ = 0;
  const int run = ++run_;
  QTimer::singleShot(0, this, [this, run] {
    if (run == run_ && status_ == rsGenerating) RunSlice();
  });
}

void TReport::GenerateAll() {
  if (status_ != rsGenerating) {
    Restart();
    status_ = rsGenerating;
    progress_ = 0;
  }
  ++run_;  // a slice still queued by Start finds its run over
  while (GenerateStep()) emit pageAvailable(PageCount());
  Finish();
}

void TReport::RunSlice() {
  QElapsedTimer clock;
  clock.start();
  do {
    if (!GenerateStep()) {
      Finish();
      return;
    }
    emit pageAvailable(PageCount());
  } while (clock.elapsed() < kSliceMs);
  SetProgress(std::clamp(WorkDone(), 0, 99));
  const int run = run_;
  QTimer::singleShot(0, this, [this, run] {
    if (run == run_ && status_ == rsGenerating) RunSlice();
  });
}

void TReport::Finish() {
  status_ = rsFinished;
  SetProgress(100);
  emit finished();
}

void TReport::SetProgress(int percent) {
  if (percent == progress_) return;
  progress_ = percent;
  emit progressChanged(percent);
}

}  // namespace mv::report
