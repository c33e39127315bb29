// Whether the test program runs under Wine, for the few cases Wine does not implement: those
// skip with a message naming what is missing, never pass silently.
#pragma once

namespace mv::test {

// True when the program is a Windows program running under Wine (its ntdll exports
// wine_get_version); false on Windows itself and on POSIX.
bool RunsUnderWine();

}  // namespace mv::test
