#include "common/datasets/apply_modes.h"

#include "common/frame/shared_state.h"
#include "platform/db/dataset.h"

namespace mv {
namespace {

void Prepare(db::TMVADODataSet& dataset, db::TCursorLocation location, db::TLockType lock,
             int32_t timeout) {
  dataset.SetCursorLocation(location);
  dataset.SetLockType(lock);
  dataset.SetCommandTimeout(timeout);
}

}  // namespace

void ApplyRead(db::TMVADODataSet& dataset) {
  Prepare(dataset, db::clUseClient, db::ltReadOnly, iReadTimeOut);
}

void ApplyWrite(db::TMVADODataSet& dataset) {
  Prepare(dataset, db::clUseClient, db::ltPessimistic, iWriteTimeOut);
}

void ApplyWriteWoLck(db::TMVADODataSet& dataset) {
  Prepare(dataset, db::clUseClient, db::ltOptimistic, iWriteTimeOut);
}

void ApplyBatchWrite(db::TMVADODataSet& dataset) {
  Prepare(dataset, db::clUseClient, db::ltBatchOptimistic, iWriteTimeOut);
}

void ApplyReport(db::TMVADODataSet& dataset) {
  Prepare(dataset, db::clUseClient, db::ltReadOnly, iReadTimeOut);
}

}  // namespace mv
