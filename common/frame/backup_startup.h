// The start of the backup and restore tool (a host program of the Quenta line). It needs the
// installation folders, the user-defined fields of the declaration service, the recipient
// identities, the inbox and outbox folders and the interface language, but none of the mail-box
// lists, service packages or Internet settings of the full start; instead it loads its own
// packages from a list. Call one start routine once, instead of Init_Quenta; the connection
// DBMAIN should be open before it, for the user-defined fields.
#pragma once

#include "common/frame/string_list.h"

namespace mv {

// Finds the installation as Init_Quenta does (registry key "\SOFTWARE\Merovan\QNVS4", the same
// error box and end of the process when the folder is missing, ServerPath and BasePath with
// their final separators) and reads from ServerPath + "SEDIFSYS.INI":
//  - DefinedRecord: GetUserDefineFields of "ETDEC_SERVICE" in the Halvo edition (IsHalvo), else
//    of "TDEC_SERVICE";
//  - Advance.Government and Advance.Merovan from [Receipient]: blanks and control characters
//    removed at both ends, upper-cased, at most 35 characters ([Receipient] ECIC is not read);
//  - Advance.EDIInPath / EDIOutPath from [Advance] (default BasePath + "INBOX" / "OUTBOX"), each
//    ending with a separator; WarnTDEC (default true); SupportTypeB (default false, true without
//    reading in the Halvo edition);
//  - the language changer's ANSI-interface flag := [Language] AnsiGUI = 1 (default 0), and
//    LanguageMode := [Language] Interface (default 1).
// Unlike Init_Quenta it leaves SysLanguageMode and the interface language as they were, and
// leaves the decimal-point setting alone. Finally it registers the print preview.
void Init_BackupRestore();

// As Init_BackupRestore, with two differences: DefinedRecord always holds the fields of
// "TDEC_SERVICE", whatever the edition, and [Language] AnsiGUI is not read.
void Init_LumoraBackupRestore();

// Loads the tool's packages from lines "NAME,English title,Chinese title", in order: the package
// file ServerPath + NAME + the platform's package extension. A loaded package is appended to
// AryPkgInfo as ServiceName NAME, ServiceExtra the title of the language changer's current
// language (English in language 1, else Chinese) and its handle. A package that cannot be
// loaded gets no entry: an error box (application title as caption) shows "Can't load Package: "
// / "不能安裝建立裝置: " and the whole line, and the next line goes on. Loaded packages are
// not sent the start code.
void LoadPkg_BackupRestore(const TStringList& list);

}  // namespace mv
