// The platform's answer to "which locale does the user / the system use", by name.
#pragma once

#include <string>

namespace mv::codepage {

// The locale name that decides the user's language (POSIX "zh_TW.UTF-8", Windows "zh-TW"); "C"
// when none is set.
std::string UserLocaleName();

// The locale name that decides the system's language; "C" when none is set.
std::string SystemLocaleName();

}  // namespace mv::codepage
