// The system log: one row of table Systemlg in the main database (connection DBMAIN) per event
// the client records, with the time and the signed-in user. Logging never disturbs the operation
// being logged: every error (no connection, no table, a refused write) is dropped without a
// message, and the row is simply missing.
//
// A row holds DateTime (local time of the call), UserName (the first field of UserRecord),
// Event, RefNo, Type and Status, all texts as Unicode; LogNo is assigned by the database. Type and
// Status always arrive as narrow text in the system code page and are stored as the Unicode text
// the installation's language shows them as (LangChanger().SysLangUnicodeStr: Big5 bytes become
// the Chinese characters they encode; in language 3 the Simplified ones).
#pragma once

#include <string_view>

namespace mv {

// Wide Event and RefNo (UTF-16 wide-value carriers: the texts they hold are stored, marks
// removed).
void InsertSystemLog(std::u16string_view event, std::u16string_view refNo, std::string_view type,
                     std::string_view status);

// A narrow RefNo in the user's code page, put into the carrier form with MV_SetWideVc.
void InsertSystemLog(std::u16string_view event, std::string_view refNo, std::string_view type,
                     std::string_view status);

// A narrow Event in the system code page, converted like Type and Status (SysLangUnicodeStr).
void InsertSystemLog(std::string_view event, std::u16string_view refNo, std::string_view type,
                     std::string_view status);

// Narrow Event and RefNo, both in the system code page and converted like Type and Status
// (SysLangUnicodeStr), unlike the narrow RefNo beside a wide Event above.
void InsertSystemLog(std::string_view event, std::string_view refNo, std::string_view type,
                     std::string_view status);

}  // namespace mv
