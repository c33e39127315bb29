// The signed-in user's row of table sysuser, as every routine that keeps settings in its
// Preference column reads and writes it, and the error box those routines show.
#pragma once

#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/db/dataset.h"

namespace mv {

// The select of the signed-in user's Preference text: the column and the key userid only.
inline constexpr std::string_view kSelectUserPreference =
    "Select Preference from sysuser where userid=:puserid";

// A dataset on DBMAIN over `commandText` (which names the parameter :puserid), prepared by
// `prepare` (ApplyRead or ApplyWrite), its parameter set to the signed-in user's id as a Unicode
// value, and open. It is closed (when open) and freed when it goes, also after an error.
class TUserRow {
 public:
  TUserRow(void (*prepare)(db::TMVADODataSet&), std::string_view commandText);
  ~TUserRow();
  TUserRow(const TUserRow&) = delete;
  TUserRow& operator=(const TUserRow&) = delete;

  // True when the user has a row.
  bool Found() const { return !dataset_.Eof(); }
  // The number of rows the select gave (the dataset's record count).
  int RecordCount() const { return dataset_.RecordCount(); }
  // The Preference text of the row; empty when it is null.
  std::u16string Preference();
  // Edits the row, writes `text` as its Preference and posts it.
  void WritePreference(const std::u16string& text);

 private:
  db::TMVADODataSet dataset_;
};

// An error whose message is wide text, raised by the settings routines themselves.
class ESettingsError : public std::runtime_error {
 public:
  explicit ESettingsError(std::u16string message);
  const std::u16string& Message() const { return message_; }

 private:
  std::u16string message_;
};

// Shows an error box with `text`, then "Reason : " / "原因 : " in the current language and the
// message of `error` as wide text (database messages are UTF-8, settings errors wide, any other
// narrow text in the user's code page).
void ShowSettingsError(const std::u16string& text, const std::exception& error);

}  // namespace mv
