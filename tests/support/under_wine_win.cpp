#include <windows.h>

#include "tests/support/under_wine.h"

namespace mv::test {

bool RunsUnderWine() {
  const HMODULE ntdll = ::GetModuleHandleW(L"ntdll.dll");
  return ntdll != nullptr && ::GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

}  // namespace mv::test
