#include "common/forms/records_taker.h"

#include <algorithm>

namespace mv {
namespace {

using Override = void (TRecordsTaker::*)(db::TMVADODataSet&);

// The handler installed on the dataset. It reaches the taker only while the taker lives; after
// that (a second taker kept it and gave it back) it calls only the handler it was installed over.
db::TDataSetNotifyEvent Handler(const std::shared_ptr<TRecordsTaker*>& self, Override method,
                                db::TDataSetNotifyEvent old) {
  return [alive = std::weak_ptr<TRecordsTaker*>(self), method,
          old = std::move(old)](db::TMVADODataSet& dataSet) {
    if (const auto taker = alive.lock()) {
      ((**taker).*method)(dataSet);
    } else if (old) {
      old(dataSet);
    }
  };
}

// Calls a copy, so that a handler which frees the taker does not destroy what is running.
void CallKept(const db::TDataSetNotifyEvent& kept, db::TMVADODataSet& dataSet) {
  if (!kept) return;
  const db::TDataSetNotifyEvent call = kept;
  call(dataSet);
}

}  // namespace

TRecordsTaker::TRecordsTaker(db::TMVADODataSet* dataSet)
    : dataSet_(dataSet), self_(std::make_shared<TRecordsTaker*>(this)) {
  if (!dataSet_) return;
  oldAfterOpen_ = dataSet_->AfterOpen();
  oldAfterRefresh_ = dataSet_->AfterRefresh();
  dataSet_->SetAfterOpen(Handler(self_, &TRecordsTaker::OverrideAfterOpen, oldAfterOpen_));
  dataSet_->SetAfterRefresh(Handler(self_, &TRecordsTaker::OverrideAfterRefresh, oldAfterRefresh_));
}

TRecordsTaker::~TRecordsTaker() {
  self_.reset();
  if (dataSet_) {
    dataSet_->SetAfterOpen(oldAfterOpen_);
    dataSet_->SetAfterRefresh(oldAfterRefresh_);
  }
}

void TRecordsTaker::AddLabel(std::shared_ptr<controls::TTextControl> label) {
  showObjects_.push_back(std::make_unique<TShowLabel>(std::move(label)));
}

void TRecordsTaker::AddPanel(std::shared_ptr<controls::TTextControl> panel) {
  showObjects_.push_back(std::make_unique<TShowPanel>(std::move(panel)));
}

void TRecordsTaker::AddForm(std::shared_ptr<controls::TTextControl> form) {
  showObjects_.push_back(std::make_unique<TShowForm>(std::move(form)));
}

void TRecordsTaker::Show(int count) {
  if (count == -1) {
    const bool counted =
        dataSet_ && dataSet_->Active() && dataSet_->CursorLocation() == db::clUseClient;
    // A cursor location changed after the open still leaves the server cursor's -1 behind.
    count = counted ? std::max(dataSet_->RecordCount(), 0) : 0;
  }
  for (const auto& display : showObjects_) display->Show(count);
}

void TRecordsTaker::Update() {
  for (const auto& display : showObjects_) display->Update();
  Show(-1);
}

void TRecordsTaker::OverrideAfterOpen(db::TMVADODataSet& dataSet) {
  Show(-1);
  CallKept(oldAfterOpen_, dataSet);
}

void TRecordsTaker::OverrideAfterRefresh(db::TMVADODataSet& dataSet) {
  Show(-1);
  CallKept(oldAfterRefresh_, dataSet);
}

}  // namespace mv
