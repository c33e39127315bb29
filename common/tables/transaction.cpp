#include "common/tables/transaction.h"

#include "platform/db/command.h"
#include "platform/db/db_error.h"

namespace mv::tables {
namespace {

void Run(const std::string& connection, std::string_view sql) {
  db::TMVADOCommand command;
  command.SetConnectionName(connection);
  command.SetCommandText(sql);
  command.Execute();
}

}  // namespace

TTransaction::TTransaction(std::string connection) : connection_(std::move(connection)) {
  Run(connection_, "BEGIN TRANSACTION");
}

TTransaction::~TTransaction() {
  if (!open_) return;
  try {
    Run(connection_, "ROLLBACK TRANSACTION");
  } catch (const db::EDatabaseError&) {
  }
}

void TTransaction::Commit() {
  Run(connection_, "COMMIT TRANSACTION");
  open_ = false;
}

}  // namespace mv::tables
