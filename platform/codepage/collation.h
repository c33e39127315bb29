// Order of texts as the user's language sorts them: the comparison behind every sorted string
// list of the library. ICU's collator does the work on POSIX, CompareStringEx on Windows.
#pragma once

#include <string_view>

namespace mv::codepage {

// Order of two wide texts without regard to case, by the collation of the user's language (the
// language of UserLanguage(); ICU's root order for a language without rules of its own):
// -1, 0 or 1. As in the platform's locale comparison, punctuation and symbols sort before digits
// and digits before letters, so "1=x" comes before "10=y" and "A=x" before "a1=y"; accents count,
// case and width do not. Unlike the platform's word sort, "-" and "'" count like other
// punctuation. An unpaired surrogate is one more unit to compare. Throws ECodePageError for a text
// of 2^31 units or more.
[[nodiscard]] int CompareTextByLocale(std::u16string_view a, std::u16string_view b);

}  // namespace mv::codepage
