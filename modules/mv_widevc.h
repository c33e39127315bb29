// The wide-value carrier: the form in which the library hands wide values to datasets, query code
// and the other primitives. A carrier is plain UTF-16 (std::u16string) with no framing of its own.
// A stretch between two WideLiteralMark characters stands for a literal: the search code wraps the
// user's words in marks, query code turns each marked stretch into a parameter, and whatever
// marked stretch is still left when a command text reaches the database is bound as a value by
// the database layer (platform/db/wide_literals.h). MV_WideVcLiteralsToSql writes the stretches
// as national literals N'...' instead, for text that goes elsewhere.
//
// Marks pair up from the left: the first opens a stretch, the second closes it, and so on. A
// carrier made by MV_SetWideVc never ends inside a stretch.
//
// Narrow text in these routines is bytes in the user's code page; characters it cannot hold
// become "?" and bytes it does not map become U+FFFD, as in MV_WideStringToAnsi /
// MV_AnsiToWideString. The byte 2 of narrow text is the mark.
#pragma once

#include <string>
#include <string_view>

#include "platform/db/wide_literals.h"

namespace mv::modules {

// Opens and closes a literal stretch in a carrier; the database layer's mark.
inline constexpr char16_t WideLiteralMark = db::WideLiteralMark;

// The carrier of wide text that may hold marked literals: the text with its paired marks kept and
// a last mark without a partner removed; nothing else changes.
std::u16string MV_SetWideVc(std::u16string_view w);
// The same for narrow text, converted to wide first.
std::u16string MV_SetWideVc(std::string_view s);

// The value the carrier holds, as a field of a dataset stores it: every mark removed, the text
// of the stretches kept. Wide and narrow result.
void MV_GetWideVc(std::u16string_view vc, std::u16string& value);
void MV_GetWideVc(std::u16string_view vc, std::string& value);

// The carrier read back as wide text, marks included: the carrier unchanged, as it has no framing
// to remove. Text routines that cut or join carriers use this, so literals keep their marks.
std::u16string MV_WideVcToWideString(std::u16string_view vc);
// The carrier read back as narrow text, marks included (as the byte 2).
std::string MV_WideVcToAnsiString(std::u16string_view vc);

// The carrier of plain wide text, which holds no literals: every mark in it is removed, so that a
// stray character 2 in user data can never open a literal.
std::u16string MV_WideStringToWideVc(std::u16string_view w);
// The same for plain narrow text, converted to wide first.
std::u16string MV_AnsiStringToWideVc(std::string_view s);

// The carrier as command text for the database: each marked stretch written as the national
// literal N'...' with every ' inside it doubled (\x02O'Neil\x02 -> N'O''Neil'); text outside the
// stretches unchanged; a last mark without a partner removed. A carrier without marks comes back
// unchanged.
std::u16string MV_WideVcLiteralsToSql(std::u16string_view vc);

}  // namespace mv::modules
