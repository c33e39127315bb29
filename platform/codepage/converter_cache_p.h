// Open ICU converters kept for the calling thread, one per code page and use, so that a conversion
// does not pay for opening a converter each time. Private to platform/codepage.
#pragma once

struct UConverter;

namespace mv::codepage {

enum class ConverterUse {
  kSubstitute,  // narrow -> wide gives U+FFFD for what does not map; wide -> narrow takes the
                // code page's best-fit rows and gives "?" for a character without a row
  kStrict,      // wide -> narrow stops at the first character without an exact mapping
};

// The calling thread's converter for `codePage` and `use`, opened on first use and kept until the
// thread ends. Its state between calls is undefined: callers reset the direction they use (the
// ucnv_toUChars / ucnv_fromUChars calls do that themselves). Throws ECodePageError for a code page
// that no converter serves.
UConverter* CachedConverter(int codePage, ConverterUse use);

}  // namespace mv::codepage
