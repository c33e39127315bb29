#include <windows.h>

#include "platform/system/local_time.h"

namespace mv::sys {

TLocalTime LocalTimeNow() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds};
}

}  // namespace mv::sys
