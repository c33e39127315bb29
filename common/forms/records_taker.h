// The record count of a list screen: a taker watches one dataset and, each time it opens or
// refreshes, writes the count into every display attached to it (show_objects.h).
#pragma once

#include <memory>
#include <vector>

#include "common/forms/show_objects.h"
#include "platform/db/dataset.h"

namespace mv {

class TRecordsTaker {
 public:
  // Watches `dataSet` (borrowed; nullptr watches nothing): keeps its after-open and after-refresh
  // handlers and installs its own, which show the count and then call the kept ones. The dataset
  // must outlive the taker.
  explicit TRecordsTaker(db::TMVADODataSet* dataSet);
  // Gives the dataset back the handlers it had (or none), then frees the displays. A handler of
  // this taker that another taker kept stays safe to call: it only calls on what it kept.
  ~TRecordsTaker();
  TRecordsTaker(const TRecordsTaker&) = delete;
  TRecordsTaker& operator=(const TRecordsTaker&) = delete;

  // Append a label, status panel or window-caption display of `control` (nullptr: a display that
  // shows nothing); the display's base caption is the control's text now.
  void AddLabel(std::shared_ptr<controls::TTextControl> label);
  void AddPanel(std::shared_ptr<controls::TTextControl> panel);
  void AddForm(std::shared_ptr<controls::TTextControl> form);

  // Writes `count` into every display in the order they were added. -1 takes the count from the
  // dataset: its record count when it is open with a client cursor, otherwise 0 (a server cursor
  // does not know its count). Any other value is shown as it stands.
  void Show(int count);
  // Every display re-reads its base caption, then Show(-1).
  void Update();

  // The handlers installed on the dataset: Show(-1), then the kept handler of the same kind.
  void OverrideAfterOpen(db::TMVADODataSet& dataSet);
  void OverrideAfterRefresh(db::TMVADODataSet& dataSet);

  const std::vector<std::unique_ptr<TShowObject>>& ShowObjects() const { return showObjects_; }
  db::TMVADODataSet* DataSet() const { return dataSet_; }

 private:
  std::vector<std::unique_ptr<TShowObject>> showObjects_;
  db::TMVADODataSet* dataSet_;
  db::TDataSetNotifyEvent oldAfterOpen_;
  db::TDataSetNotifyEvent oldAfterRefresh_;
  // Held while the taker lives; the installed handlers check it before they reach the taker.
  std::shared_ptr<TRecordsTaker*> self_;
};

}  // namespace mv
