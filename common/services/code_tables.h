// Code tables: the codes a document field accepts, each with an English and a Chinese
// description, kept by the installation in its system configuration file (ServerPath +
// Global_Merovan_Ini). Every section whose name holds "CODE_" (compared without regard to case,
// for example [EXPORT_CODE_CURRENCY] or [IMPORT_CODE_COUNTRY]) is one table, one line per code:
//
//   [EXPORT_CODE_CURRENCY]
//   USD=US Dollar|美元
//   HKD=Hong Kong Dollar|港元
//
// The key is the code; the value is the English description, a "|", then the Chinese one. A
// value without "|" is both descriptions; text after a second "|" belongs to the Chinese one.
// Texts are narrow, in the system code page (Big5 for a Chinese installation), as the INI layer
// reads them (a UTF-16 file is converted to it). Codes keep the file's order; a code listed again
// keeps its first line, as every INI look-up does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mv {

struct TCodeItem {
  std::string Code;     // narrow, system code page
  std::string English;  // narrow, system code page
  std::string Chinese;  // narrow, system code page
};

using TCodeTable = std::vector<TCodeItem>;

// The item of a code-table line: `code` and the value `value` split at its first "|" (a "|" that
// is the second byte of a double-byte character does not split). Narrow text in the system code
// page in and out; a value holding a "|" is read as characters of that code page, so bytes that
// form no character there come out as "?" (a value without "|" is kept byte for byte).
[[nodiscard]] TCodeItem ParseCodeItem(std::string_view code, std::string_view value);

// The names of the code-table sections of the current installation's system configuration
// file, as the file spells them, in file order. The file is read once per server folder
// (ServerPath + Global_Merovan_Ini): later calls for the same file answer from memory, a new
// ServerPath reads its file. A missing file has no tables.
std::vector<std::string> CodeTableNames();

// The code table of section `name`, the section's whole name compared without regard to ASCII
// case. An unknown name gives an empty table. The
// reference stays valid until ServerPath changes and a code table is asked for again.
const TCodeTable& CodeTable(std::string_view name);

// The pick list of table `name` for the popup form: one "code|description" line per code in
// table order, the description in the current language of the language changer (English in
// language 1; otherwise Chinese, as Simplified characters in code page 936 in language 3). An
// empty description takes the other language's. A "|" inside a description is written as "/",
// so the last "|" of a line always ends the code. Narrow text; an unknown table gives no lines.
std::vector<std::string> CodePickList(std::string_view name);

}  // namespace mv
