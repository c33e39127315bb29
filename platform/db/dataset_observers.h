// Following a dataset: any number of observers (grids, record counts ...) are told what changed,
// apart from the dataset's own after-open and after-refresh events, which belong to its caller.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace mv::db {

class TMVADODataSet;

enum TDataSetEvent {
  deOpened,          // the dataset opened: new fields and rows
  deClosed,          // the dataset closed (also when a refresh failed and left it closed)
  deRefreshed,       // the command ran again: rows new, fields kept in their order and settings
  deLayoutChanged,   // a field moved, was hidden or shown, relabelled, or a calculated one added
  deRecordMoved,     // the current row is another one
  deRecordChanged,   // the current row's values or its edit state changed (Edit, a value, Post,
                     // Cancel)
  deRowInserted,     // a new row was posted; RecNo is its number
  deRowDeleted,      // a row was deleted; RecNo is the number it had
  deDataSetChanged,  // anything may have changed: controls were enabled again
  deDestroying,      // the dataset is being destroyed; no event follows
};

// What an observer is told. RecNo is the row concerned (1-based) for deRowInserted and
// deRowDeleted, and the current row's number (0 when there is none) for the others.
struct TDataSetChange {
  TDataSetEvent Event;
  int RecNo = 0;
};

using TDataSetListener = std::function<void(TMVADODataSet&, const TDataSetChange&)>;

// The observers of one dataset. Private to the dataset and its links.
class TDataSetObservers;

// One observer's subscription to a dataset, ended when the link is destroyed or reset. A
// listener may reset its own or any other link, or destroy the dataset, while it is being told;
// a link removed during a notification is not called afterwards. A link outlives its dataset
// safely: it receives deDestroying, and DataSet() is nullptr from then on.
class TDataSetLink {
 public:
  TDataSetLink() = default;
  // Starts telling `listener` about every change of `dataset`.
  TDataSetLink(TMVADODataSet& dataset, TDataSetListener listener);
  ~TDataSetLink();
  TDataSetLink(TDataSetLink&& other) noexcept;
  TDataSetLink& operator=(TDataSetLink&& other) noexcept;
  TDataSetLink(const TDataSetLink&) = delete;
  TDataSetLink& operator=(const TDataSetLink&) = delete;

  // Ends the subscription; the listener is not called again.
  void Reset();
  // The dataset followed; nullptr when none or when it was destroyed.
  TMVADODataSet* DataSet() const;

 private:
  std::weak_ptr<TDataSetObservers> observers_;
  uint64_t id_ = 0;
};

}  // namespace mv::db
