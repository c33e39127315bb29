// One transaction on a named connection, for the work of one table: begun when made, rolled back
// when it goes unless committed, so that an error or a cancel anywhere leaves the table as it was.
#pragma once

#include <string>

namespace mv::tables {

class TTransaction {
 public:
  // Begins a transaction on the open connection `connection`; raises db::EDatabaseError when the
  // database refuses.
  explicit TTransaction(std::string connection);
  // Rolls back unless Commit ran; a failing rollback is not reported (the database drops the
  // transaction with the connection anyway).
  ~TTransaction();
  TTransaction(const TTransaction&) = delete;
  TTransaction& operator=(const TTransaction&) = delete;

  // Makes the work permanent; raises db::EDatabaseError when the database refuses, and the
  // transaction is then rolled back.
  void Commit();

 private:
  std::string connection_;
  bool open_ = true;
};

}  // namespace mv::tables
