// How a configuration file's bytes hold its text: UTF-16LE behind the byte-order mark FF FE, or
// bytes in the system code page, possibly behind a UTF-8 byte-order mark that is skipped when
// reading and written back as it was.
#pragma once

#include <string>
#include <string_view>

namespace mv::ini::detail {

enum class TIniEncoding { kAnsi, kAnsiUtf8Bom, kUtf16Le };

// The encoding the first bytes of a file announce.
TIniEncoding DetectEncoding(std::string_view bytes);

// The byte-order mark of `encoding` (empty for kAnsi).
std::string_view ByteOrderMark(TIniEncoding encoding);

// The UTF-16 code units of little-endian bytes (a lone last byte is dropped).
std::u16string Utf16FromLittleEndian(std::string_view bytes);

// The little-endian bytes of UTF-16 code units.
std::string LittleEndianFromUtf16(std::u16string_view text);

}  // namespace mv::ini::detail
