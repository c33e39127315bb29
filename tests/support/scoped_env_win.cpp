// Windows: _putenv_s changes the C run-time's copy and the process's environment block, so that
// getenv and the programs a test starts both see the value.
#include <cstdlib>

#include "tests/support/temp_dir.h"

namespace mv::test {

ScopedEnv::ScopedEnv(const char* name, const std::string& value) : name_(name) {
  if (const char* old = std::getenv(name)) {
    had_ = true;
    old_ = old;
  }
  // An empty value would remove the variable; tests that set "" mean "set, and empty", which
  // the library's readers treat as unset either way.
  ::_putenv_s(name, value.c_str());
}

ScopedEnv::~ScopedEnv() {
  ::_putenv_s(name_.c_str(), had_ ? old_.c_str() : "");
}

}  // namespace mv::test
