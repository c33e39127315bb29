#include "platform/db/command.h"

#include "platform/db/run_query_p.h"

namespace mv::db {

int TMVADOCommand::Execute() {
  return RunQuery(*this, true).numRowsAffected();
}

}  // namespace mv::db
