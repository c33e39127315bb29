#include "common/settings/system_log.h"

#include <exception>
#include <string>

#include "common/datasets/apply_modes.h"
#include "common/dates/date_calendar.h"
#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "modules/mv_widevc.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "platform/system/local_time.h"

namespace mv {
namespace {

// Selects no row: the query only gives an empty, updatable result with the table's columns.
constexpr std::string_view kSelectNoRow = "Select * from Systemlg where (LogNo IS NULL)";

// Narrow text of the system code page as the installation's language shows it.
std::u16string SystemText(std::string_view text) {
  return LangChanger().SysLangUnicodeStr(text, text);
}

// The local date and time now.
TDateTime Now() {
  const sys::TLocalTime t = sys::LocalTimeNow();
  const int64_t day = DayNumberOf({t.Year, t.Month, t.Day});
  const double ms = ((t.Hour * 60.0 + t.Minute) * 60.0 + t.Second) * 1000.0 + t.Msec;
  return DateOf(day, ms / 86400000.0);
}

// The text a wide-value carrier holds.
std::u16string CarriedText(std::u16string_view carrier) {
  std::u16string text;
  modules::MV_GetWideVc(carrier, text);
  return text;
}

void AppendRow(std::u16string_view event, std::u16string_view refNo, std::string_view type,
               std::string_view status) {
  db::TMVADODataSet dataset;
  ApplyWrite(dataset);
  dataset.SetCommandText(kSelectNoRow);
  dataset.Open();
  dataset.Insert();
  dataset.FieldByName("DateTime").SetAsDateTime(Now());
  dataset.FieldByName("UserName")
      .SetAsWideString(codepage::ToWide(UserRecord.UserID, codepage::SystemCodePage()));
  dataset.FieldByName("Event").SetAsWideString(CarriedText(event));
  dataset.FieldByName("RefNo").SetAsWideString(CarriedText(refNo));
  dataset.FieldByName("Type").SetAsWideString(SystemText(type));
  dataset.FieldByName("Status").SetAsWideString(SystemText(status));
  dataset.Post();
}

}  // namespace

void InsertSystemLog(std::u16string_view event, std::u16string_view refNo, std::string_view type,
                     std::string_view status) {
  try {
    AppendRow(event, refNo, type, status);
  } catch (const std::exception&) {
    // A failing log must not fail the operation it records.
  }
}

void InsertSystemLog(std::u16string_view event, std::string_view refNo, std::string_view type,
                     std::string_view status) {
  try {
    InsertSystemLog(event, modules::MV_SetWideVc(refNo), type, status);
  } catch (const std::exception&) {
  }
}

void InsertSystemLog(std::string_view event, std::u16string_view refNo, std::string_view type,
                     std::string_view status) {
  try {
    InsertSystemLog(SystemText(event), refNo, type, status);
  } catch (const std::exception&) {
  }
}

void InsertSystemLog(std::string_view event, std::string_view refNo, std::string_view type,
                     std::string_view status) {
  try {
    const std::u16string wideRefNo = SystemText(refNo);
    InsertSystemLog(SystemText(event), wideRefNo, type, status);
  } catch (const std::exception&) {
  }
}

}  // namespace mv
