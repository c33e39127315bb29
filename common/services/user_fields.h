// The user-defined reference fields of a service: five fields a service's documents and mail-box
// rows carry (the mail-box columns Ref1 to Ref5) whose captions each installation chooses, per
// service, in the database table Settings:
//
//   Settings (Service varchar(30), FieldNo int, EngCaption nvarchar(50), ChiCaption nvarchar(50),
//             primary key (Service, FieldNo))
//
// One row per configured field: the service's name as the client passes it ("TDEC_SERVICE",
// "ETDEC_SERVICE" ...), the field's number 1 to 5, its English and its Chinese caption. A field
// without a row, or with an empty or null caption, keeps its default caption "Ref #1" ..
// "Ref #5" (in both languages).
#pragma once

#include <string>

#include "common/frame/shared_state.h"

namespace mv {

// Number of user-defined reference fields of a service.
inline constexpr int kUserDefinedFields = 5;

// Fills `record` with the user-defined fields of `service`: FieldName "Ref1" .. "Ref5" (the
// mail-box columns), EngCaption and ChiCaption the captions from table Settings or their defaults,
// five lines each in field order, as narrow text in the system code page (a caption the code page
// cannot hold shows "?"). Lists of `record` that are null are created; existing ones are
// replaced. Rows with a number outside 1 .. 5 are ignored. Reads on the connection DBMAIN,
// prepared for reading, with the service bound as parameter :Service. A database error (no
// DBMAIN, no table) is shown in an error box ("Cannot read the user-defined fields" /
// "不能讀取自訂欄位", "\r\n", "Reason : " / "原因 : " and the error's message) and leaves the
// defaults; the caller is not told.
void GetUserDefineFields(const std::string& service, TDefinedRecord& record);

}  // namespace mv
