// A statement that returns no rows (insert, update, delete, create ...), run on a named connection.
#pragma once

#include "platform/db/query.h"

namespace mv::db {

class TMVADOCommand : public TMVADOQuery {
 public:
  // Runs the command text with its parameters; returns the number of rows it changed (-1 when
  // the driver does not tell). Raises EDatabaseError with the driver's message on failure.
  int Execute();
};

}  // namespace mv::db
