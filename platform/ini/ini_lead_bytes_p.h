// Which bytes of a code page start a two-byte character, so that the INI reader never takes the
// second byte of a Big5 or GBK character for "]" or for a letter to fold.
#pragma once

#include "platform/ini/ini_text_p.h"

namespace mv::ini::detail {

// The lead bytes of the Windows code page `codePage`, or nullptr when it has no two-byte
// characters (single-byte code pages; UTF-8, whose multi-byte characters are all bytes >= 0x80;
// code pages no converter serves). The table lives as long as the process.
const TLeadBytes* LeadBytesOf(int codePage);

}  // namespace mv::ini::detail
