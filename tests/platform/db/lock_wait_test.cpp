// Statements on a SQLite file that a second connection holds locked wait as long as their time-out
// says: a bounded wait ends in an error, a time-out of 0 waits until the lock goes.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <thread>

#include "platform/db/dataset.h"
#include "platform/db/db_error.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::db {
namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

class LockedFile : public testing::Test {
 protected:
  LockedFile() {
    test::Exec("create table t (k int primary key, a int)");
    test::Exec("insert into t values (1, 1)");
    sqlite3_open_v2(dir_.File("main.db").c_str(), &holder_, SQLITE_OPEN_READWRITE, nullptr);
  }
  ~LockedFile() override { sqlite3_close(holder_); }
  // The second connection runs `sql` (a BEGIN that locks, or the COMMIT that frees).
  void Holder(const char* sql) {
    ASSERT_EQ(sqlite3_exec(holder_, sql, nullptr, nullptr, nullptr), SQLITE_OK);
  }

  test::TempDir dir_;
  test::SqliteBackend db_{dir_};
  sqlite3* holder_ = nullptr;
  TMVADODataSet ds_;
};

// The driver's own wait is 5 s: the upper bound tells a 1 s time-out from it with room to spare.
TEST_F(LockedFile, ATimeOutBoundsTheWaitOfWritesAndReads) {
  ds_.SetCommandTimeout(1);
  ds_.SetCommandText("select a from t");
  ds_.Open();
  ds_.Edit();
  ds_.Fields(0).SetAsInteger(2);
  Holder("begin immediate");  // another writer: reads go on, writes wait
  Clock::time_point start = Clock::now();
  EXPECT_THROW(ds_.Post(), EDatabaseError);
  EXPECT_GE(SecondsSince(start), 0.9);
  EXPECT_LT(SecondsSince(start), 4);
  ds_.Cancel();
  ds_.Close();
  Holder("commit");
  Holder("begin exclusive");  // nobody else reads
  start = Clock::now();
  EXPECT_THROW(ds_.Open(), EDatabaseError);
  EXPECT_GE(SecondsSince(start), 0.9);
  EXPECT_LT(SecondsSince(start), 4);
  Holder("commit");
}

// A time-out of 0 sets no limit: the write waits until the other writer is done.
TEST_F(LockedFile, ATimeOutOfZeroWaitsUntilTheLockGoes) {
  ds_.SetCommandTimeout(0);
  ds_.SetCommandText("select a from t");
  ds_.Open();
  ds_.Edit();
  ds_.Fields(0).SetAsInteger(3);
  Holder("begin immediate");
  const Clock::time_point start = Clock::now();
  std::thread release([this] {
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    sqlite3_exec(holder_, "commit", nullptr, nullptr, nullptr);
  });
  EXPECT_NO_THROW(ds_.Post());
  release.join();
  EXPECT_GE(SecondsSince(start), 1.4);
  ds_.Close();
  ds_.Open();
  EXPECT_EQ(ds_.Fields(0).AsInteger(), 3);
}

}  // namespace
}  // namespace mv::db
