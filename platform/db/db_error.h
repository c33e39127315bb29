// The one exception the database layer raises.
#pragma once

#include <stdexcept>
#include <string>

namespace mv::db {

// A database failure: an unknown or unopenable connection, SQL the server refuses, a dataset used
// in the wrong state, a field or parameter that does not exist. what() is the driver's message
// (or the layer's own) as UTF-8.
class EDatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace mv::db
