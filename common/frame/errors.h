// Exceptions the library raises to its callers.
#pragma once

#include <stdexcept>
#include <string>

namespace mv {

// A text that should hold a number does not.
class EConvertError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// An operating-system failure (a module or export that cannot be found, ...), with the system's
// own message.
class EOSError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The whole number in `text` (decimal, optional sign, blanks around allowed); throws
// EConvertError "'text' is not a valid integer value" otherwise.
int StrToInt(const std::string& text);

}  // namespace mv
