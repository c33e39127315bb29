// The library's code-page, language and wide-value carrier routines. Each forwards to the
// primitive of the same name in the modules package (modules/mv_codepage.h, modules/mv_widevc.h)
// and returns its result unchanged; the contracts below are the primitives'. Narrow text is bytes
// in the user's code page (or in the code page given), wide text is UTF-16, a carrier is wide
// text in which WideLiteralMark pairs wrap literals. MV_GetCodepage is in common/frame/startup.h.
//
// Mind the sense of the Boolean arguments: MV_GetCodepage(system) but MV_GetLanguageID(user) and
// MV_GetLanguageName(user). None of these routines throws.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "modules/mv_widevc.h"

namespace mv {

using modules::WideLiteralMark;

// The Windows language identifier of the user (true) or the system (false): 0x0404, 0x0409 ...;
// 0x0409 for an unset, "C" or unknown locale.
uint16_t MV_GetLanguageID(bool user);
// The English name of that language, narrow ("Chinese (Traditional, Taiwan)").
std::string MV_GetLanguageName(bool user);

// Wide text as narrow text in `codePage` ("?" for what it cannot hold; empty for an unknown code
// page), and narrow text in `codePage` as wide text (U+FFFD for bytes it does not map).
std::string MV_WideStringToCodePage(std::u16string_view w, uint16_t codePage);
std::u16string MV_CodePageToWideString(std::string_view s, uint16_t codePage);

// The same with the user's code page.
std::string MV_WideStringToAnsi(std::u16string_view w);
std::u16string MV_AnsiToWideString(std::string_view s);

// True when the wide text converts to the user's code page without any substitution.
bool MV_IsWideStringMappableToAnsi(std::u16string_view w);

// The carrier of wide or narrow text that may hold marked literals: paired marks kept, a last
// unpaired mark removed.
std::u16string MV_SetWideVc(std::u16string_view w);
std::u16string MV_SetWideVc(std::string_view s);

// The value a carrier holds, marks removed, as wide or narrow text.
void MV_GetWideVc(std::u16string_view vc, std::u16string& value);
void MV_GetWideVc(std::u16string_view vc, std::string& value);

// A carrier read back as wide (unchanged) or narrow text, marks included.
std::u16string MV_WideVcToWideString(std::u16string_view vc);
std::string MV_WideVcToAnsiString(std::u16string_view vc);

// The carrier of plain wide or narrow text: every mark removed.
std::u16string MV_WideStringToWideVc(std::u16string_view w);
std::u16string MV_AnsiStringToWideVc(std::string_view s);

// A carrier as command text for the database: each marked stretch written as N'...' with inner
// quotes doubled; a carrier without marks unchanged.
std::u16string MV_WideVcLiteralsToSql(std::u16string_view vc);

}  // namespace mv
