#include <cstdlib>

#include "tests/support/temp_dir.h"

namespace mv::test {

ScopedEnv::ScopedEnv(const char* name, const std::string& value) : name_(name) {
  if (const char* old = std::getenv(name)) {
    had_ = true;
    old_ = old;
  }
  ::setenv(name, value.c_str(), 1);
}

ScopedEnv::~ScopedEnv() {
  if (had_) {
    ::setenv(name_.c_str(), old_.c_str(), 1);
  } else {
    ::unsetenv(name_.c_str());
  }
}

}  // namespace mv::test
