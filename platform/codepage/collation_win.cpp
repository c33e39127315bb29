// Windows: the order of the user's locale through CompareStringEx.
#include <windows.h>

#include <climits>

#include "platform/codepage/codepage.h"
#include "platform/codepage/collation.h"

namespace mv::codepage {
namespace {

int Length(std::u16string_view s) {
  if (s.size() > static_cast<size_t>(INT_MAX)) throw ECodePageError("text too long to compare");
  return static_cast<int>(s.size());
}

}  // namespace

int CompareTextByLocale(std::u16string_view a, std::u16string_view b) {
  // SORT_STRINGSORT: "-" and "'" count like other punctuation, not as the word sort has them.
  const int result = ::CompareStringEx(
      LOCALE_NAME_USER_DEFAULT, NORM_IGNORECASE | NORM_IGNOREWIDTH | SORT_STRINGSORT,
      reinterpret_cast<LPCWCH>(a.data()), Length(a), reinterpret_cast<LPCWCH>(b.data()), Length(b),
      nullptr, nullptr, 0);
  if (result == 0) throw ECodePageError("texts cannot be compared");
  return result == CSTR_LESS_THAN ? -1 : result == CSTR_GREATER_THAN ? 1 : 0;
}

}  // namespace mv::codepage
