// Replacement of a piece of text by another, in narrow text (bytes in the user's code page) and
// wide text (UTF-16), in every mixture of the two forms.
#pragma once

#include <string>
#include <string_view>

namespace mv::modules {

// The flags of MV_WideStringReplace, to be combined with "|".
enum TReplaceFlag : unsigned { rfReplaceAll = 1u, rfIgnoreCase = 2u };
using TReplaceFlags = unsigned;

// `s` with the first occurrence of `old` (every occurrence with rfReplaceAll) replaced by `by`.
// Occurrences are whole characters (never the second byte of a Big5 character or half of a
// surrogate pair), found from left to right without overlapping: the search goes on after each
// replaced piece, so "aaa" with "aa" -> "X" gives "Xa", and `by` is never searched again. With
// rfIgnoreCase letters match by the Unicode simple case folding ("Ａ" matches "ａ"). An empty
// `old` changes nothing. The result is narrow when all three texts are narrow and wide otherwise;
// narrow text is read in the user's code page (code page 1252 when no converter serves it).
std::string MV_WideStringReplace(std::string_view s, std::string_view old, std::string_view by,
                                 TReplaceFlags flags);
std::u16string MV_WideStringReplace(std::string_view s, std::string_view old,
                                    std::u16string_view by, TReplaceFlags flags);
std::u16string MV_WideStringReplace(std::string_view s, std::u16string_view old,
                                    std::string_view by, TReplaceFlags flags);
std::u16string MV_WideStringReplace(std::string_view s, std::u16string_view old,
                                    std::u16string_view by, TReplaceFlags flags);
std::u16string MV_WideStringReplace(std::u16string_view s, std::string_view old,
                                    std::string_view by, TReplaceFlags flags);
std::u16string MV_WideStringReplace(std::u16string_view s, std::string_view old,
                                    std::u16string_view by, TReplaceFlags flags);
std::u16string MV_WideStringReplace(std::u16string_view s, std::u16string_view old,
                                    std::string_view by, TReplaceFlags flags);
std::u16string MV_WideStringReplace(std::u16string_view s, std::u16string_view old,
                                    std::u16string_view by, TReplaceFlags flags);

}  // namespace mv::modules
