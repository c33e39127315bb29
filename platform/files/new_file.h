// Making a file that must not exist yet, and finding out whether a base name is in use, for
// unique temporary file names.
#pragma once

#include <string>

namespace mv::files {

// Makes the empty file `path` and closes it at once; false when a file or folder of that name
// exists already (the making itself is the test, so of several processes racing for one name
// exactly one succeeds) or when it cannot be made (missing folder, no permission).
bool CreateNewFile(const std::string& path);

// True when the folder `folder` (ending with a separator) holds an entry named `baseName` or
// `baseName` + "." + any extension, matched without regard to ASCII case as the client's file
// names are. False when the folder cannot be read.
bool BaseNameTaken(const std::string& folder, const std::string& baseName);

}  // namespace mv::files
