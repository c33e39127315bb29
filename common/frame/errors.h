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

// The quiet abort: ends the operation in progress without any message. Hosts catch it and show
// nothing; code between the raise and the host lets it pass.
class EAbort : public std::runtime_error {
 public:
  EAbort() : std::runtime_error("Operation aborted") {}
};

// An input/output failure of the run-time file layer: its run-time error code, numbered as the
// classic file routines do (100 disk read error, 101 disk write error, 102 file not assigned,
// 103 file not open, 104 file not open for input, 105 file not open for output ...), and its
// message as narrow text in the user's code page.
class EInOutError : public std::runtime_error {
 public:
  EInOutError(int errorCode, const std::string& message)
      : std::runtime_error(message), ErrorCode(errorCode) {}
  int ErrorCode;
};

// The whole number in `text` (decimal, optional sign, blanks around allowed); throws
// EConvertError "'text' is not a valid integer value" otherwise.
int StrToInt(const std::string& text);

}  // namespace mv
