#include <sqlite3.h>

#include <map>

#include "platform/db/connection_qt_p.h"
#include "platform/db/lock_wait_p.h"

namespace mv::db {
namespace {

// Qt's SQLite driver waits this long for a locked database unless told otherwise.
constexpr int kDriverWaitMs = 5000;
// Pause between two tries of a statement that waits without limit.
constexpr int kRetryMs = 20;

// The wait in force on each SQLite connection, in seconds as TLockWait takes them; absent: the
// driver's. Connections are used on one thread.
std::map<void*, int>& WaitInForce() {
  static std::map<void*, int> waits;
  return waits;
}

int RetryForever(void*, int) {
  sqlite3_sleep(kRetryMs);
  return 1;
}

void Apply(void* handle, int seconds) {
  auto* sqlite = static_cast<sqlite3*>(handle);
  if (seconds == 0) {
    sqlite3_busy_handler(sqlite, RetryForever, nullptr);
  } else {
    sqlite3_busy_timeout(sqlite, seconds < 0 ? kDriverWaitMs : seconds * 1000);
  }
}

}  // namespace

TLockWait::TLockWait(const QSqlDatabase& database, int seconds)
    : handle_(SqliteHandleOf(database)) {
  if (handle_ == nullptr) return;
  auto& waits = WaitInForce();
  const auto it = waits.find(handle_);
  previous_ = it == waits.end() ? -1 : it->second;
  waits[handle_] = seconds;
  Apply(handle_, seconds);
}

TLockWait::~TLockWait() {
  if (handle_ == nullptr) return;
  if (previous_ < 0) {
    WaitInForce().erase(handle_);
  } else {
    WaitInForce()[handle_] = previous_;
  }
  Apply(handle_, previous_);
}

}  // namespace mv::db
