// The names of the document statuses, one letter each ("A" authorized, "F" draft ...). The letter
// is upper-cased first, so "a" and "A" are the same; a letter without a status, and any byte that
// is not an ASCII letter, gives "Unknown" / "不詳". D and G share one name in each language.
#pragma once

#include <string>

namespace mv {

// The English name of the status (ASCII, the same bytes in every code page).
std::string StatusDescription(char status);

// The Chinese name of the status as narrow text in the user's code page ("?" for characters it
// cannot hold), and as UTF-16.
std::string StatusDesc_C(char status);
std::u16string StatusDesc_CW(char status);

}  // namespace mv
