// Traditional -> Simplified Chinese, for the simplified-Chinese language of the user interface
// (Chinese texts of Big5 installations shown in GB).
#pragma once

#include <string>
#include <string_view>

namespace mv::codepage {

// Wide text with every Traditional Chinese character replaced by its Simplified form (POSIX: ICU's
// "Hant-Hans" transliterator, which also picks the usual word forms: 頭髮 -> 头发; Windows:
// LCMapStringEx, character by character); every other character, unpaired surrogates included,
// is unchanged. Throws ECodePageError when the mapping is not available (ICU data missing).
std::u16string ToSimplified(std::u16string_view text);

// Big5 narrow text (code page 950) as GBK narrow text (code page 936) in Simplified Chinese. Bytes
// that Big5 does not map come out as "?" (through U+FFFD), as do characters GBK cannot hold
// (private-use characters of the Big5 user-defined area).
std::string Big5ToGbk(std::string_view big5);

}  // namespace mv::codepage
