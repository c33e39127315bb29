#include "platform/db/dataset_observers.h"

#include <algorithm>

#include "platform/db/dataset.h"
#include "platform/db/dataset_observers_p.h"

namespace mv::db {

uint64_t TDataSetObservers::Add(TDataSetListener listener) {
  listeners_.emplace_back(nextId_, std::make_shared<TDataSetListener>(std::move(listener)));
  return nextId_++;
}

void TDataSetObservers::Remove(uint64_t id) {
  std::erase_if(listeners_, [id](const auto& entry) { return entry.first == id; });
}

bool TDataSetObservers::Notify(const TDataSetChange& change) {
  const std::shared_ptr<TDataSetObservers> self = shared_from_this();
  std::vector<uint64_t> ids;
  ids.reserve(listeners_.size());
  for (const auto& entry : listeners_) ids.push_back(entry.first);
  for (uint64_t id : ids) {
    if (owner_ == nullptr) return false;
    auto found = std::find_if(listeners_.begin(), listeners_.end(),
                              [id](const auto& entry) { return entry.first == id; });
    if (found == listeners_.end()) continue;  // removed by an earlier listener
    const std::shared_ptr<TDataSetListener> listener = found->second;  // kept while it runs
    (*listener)(*owner_, change);
  }
  return owner_ != nullptr;
}

TDataSetLink::TDataSetLink(TMVADODataSet& dataset, TDataSetListener listener)
    : observers_(dataset.observers_), id_(dataset.observers_->Add(std::move(listener))) {}

TDataSetLink::~TDataSetLink() {
  Reset();
}

TDataSetLink::TDataSetLink(TDataSetLink&& other) noexcept
    : observers_(std::move(other.observers_)), id_(std::exchange(other.id_, 0)) {}

TDataSetLink& TDataSetLink::operator=(TDataSetLink&& other) noexcept {
  if (this != &other) {
    Reset();
    observers_ = std::move(other.observers_);
    id_ = std::exchange(other.id_, 0);
  }
  return *this;
}

void TDataSetLink::Reset() {
  if (auto observers = observers_.lock()) observers->Remove(id_);
  observers_.reset();
  id_ = 0;
}

TMVADODataSet* TDataSetLink::DataSet() const {
  const auto observers = observers_.lock();
  return observers ? observers->Owner() : nullptr;
}

}  // namespace mv::db
