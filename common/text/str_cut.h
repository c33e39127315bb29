// Cutting text: the first or last characters of narrow text (bytes in the user's code page, so a
// Big5 character counts as two) or of a wide-value carrier (UTF-16 code units), stripping bytes
// of a set, and cutting fixed-width fields out of a record buffer. None of them reports an error:
// a count of 0 or less, or an empty text, gives an empty result; a count beyond the text gives the
// whole text.
#pragma once

#include <bitset>
#include <string>
#include <string_view>

namespace mv {

// A set of single-byte characters, one member per byte value 0 ..= 255.
using TCharSet = std::bitset<256>;

// The set whose members are the bytes of `members`.
TCharSet MakeCharSet(std::string_view members);

// Narrow: the first `n` bytes of `s`; the whole of `s` when it is shorter.
std::string Left(std::string_view s, int n);

// Wide: the carrier `s` read back with MV_WideVcToWideString, its first `n` code units taken and
// the result put into the carrier form with MV_SetWideVc. Marks count as characters, and a cut
// that leaves a literal open drops its mark (\x02AB\x02 with n = 2 gives "A").
std::u16string StrLeft(std::u16string_view s, int n);

// Narrow: the bytes of `s` from position length - n + 1 (counted from 1) to the end; a start
// before position 1 starts at 1, so n beyond the length gives the whole of `s`.
std::string Right(std::string_view s, int n);

// Wide: as Right, on the carrier `s` read back with MV_WideVcToWideString; the result is put into
// the carrier form with MV_SetWideVc (a cut that leaves a literal open drops its mark).
std::u16string StrRight(std::u16string_view s, int n);

// Narrow: `s` without every byte that is a member of `set`; the other bytes keep their order.
std::string Strip(std::string_view s, const TCharSet& set);

// Cuts the next fixed-width field out of a record buffer: `out` becomes exactly the `n` bytes at
// `p` (zero bytes among them included), then `p` advances by `n`. The result is that of taking the
// zero-terminated text at `p` and then overwriting its first `n` bytes, but nothing beyond
// p + n is read. When the text at `p` ends before `n` bytes, the bytes past its end are whatever
// the buffer holds there, so the caller's buffer must hold `n` bytes from `p`. An `n` of 0 or less
// gives an empty `out` and leaves `p` where it is.
void MovePChar(int n, const char*& p, std::string& out);

}  // namespace mv
