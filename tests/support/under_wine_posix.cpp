#include "tests/support/under_wine.h"

namespace mv::test {

bool RunsUnderWine() {
  return false;  // a POSIX program runs on the system itself
}

}  // namespace mv::test
