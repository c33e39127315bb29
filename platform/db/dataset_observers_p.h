// The observers of one dataset, shared by the dataset and its links so that either may go first.
// Private to the database layer.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/db/dataset_observers.h"

namespace mv::db {

class TDataSetObservers : public std::enable_shared_from_this<TDataSetObservers> {
 public:
  explicit TDataSetObservers(TMVADODataSet& owner) : owner_(&owner) {}

  uint64_t Add(TDataSetListener listener);
  void Remove(uint64_t id);
  // Tells every listener, in the order they were added; stops when one destroys the dataset.
  // Returns false when the dataset was destroyed meanwhile.
  bool Notify(const TDataSetChange& change);
  // The dataset is gone: no listener is told anything more.
  void Detach() { owner_ = nullptr; }
  TMVADODataSet* Owner() const { return owner_; }

 private:
  TMVADODataSet* owner_;
  std::vector<std::pair<uint64_t, std::shared_ptr<TDataSetListener>>> listeners_;
  uint64_t nextId_ = 1;
};

}  // namespace mv::db
