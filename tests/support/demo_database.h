// The demo installation's database for tests that read or write it: each test works on its own
// copy, so the built file stays as the build made it.
#pragma once

#include <string>

#include "tests/support/temp_dir.h"

namespace mv::test {

// Copies the demo database into `dir` (as "mvdemo.db") and returns the connection string of the
// copy ("sqlite:" + its path).
std::string CopyDemoDatabase(const TempDir& dir);

}  // namespace mv::test
