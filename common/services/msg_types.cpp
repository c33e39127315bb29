#include "common/services/msg_types.h"

#include <charconv>
#include <cstdio>

#include "common/datasets/apply_modes.h"
#include "common/frame/errors.h"
#include "common/services/msg_fields.h"
#include "platform/db/dataset.h"

namespace mv {
namespace {

constexpr int kModeWithParties = 2;

// The day number of a key's first field: a number in "." notation with an optional sign ("+" as
// well as "-", as the client's conversion reads it), blanks around allowed.
double KeyDateTime(const std::string& field) {
  std::string_view text = TrimControls(field);
  if (text.starts_with('+') && !text.substr(1).starts_with('-')) text.remove_prefix(1);
  double value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (text.empty() || error != std::errc() || stop != end) {
    throw EConvertError("'" + field + "' is not a valid floating point value");
  }
  return value;
}

std::string MatchResult(db::TMVADODataSet& rows, int mode) {
  std::string result = rows.FieldByName("MType").AsString();
  if (mode == kModeWithParties) {
    result += kMsgKeySeparator + rows.FieldByName("Sender").AsString() + kMsgKeySeparator +
              rows.FieldByName("Recipient").AsString();
  }
  return result;
}

}  // namespace

std::string MakeMsgKey(double dateTime, const std::string& refNo, const std::string& sender) {
  char digits[64];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, dateTime);
  (void)error;  // 64 characters hold every double
  return std::string(digits, end) + kMsgKeySeparator + refNo + kMsgKeySeparator + sender;
}

void GetMsgType(const std::string& table, const std::string& key, int mode, std::string& result) {
  result.clear();
  std::string field, refNo, sender;
  SEGX(kMsgKeySeparator, key, 1, field);
  SEGX(kMsgKeySeparator, key, 2, refNo);
  SEGX(kMsgKeySeparator, key, 3, sender);
  const double wanted = KeyDateTime(field);

  db::TMVADODataSet rows;
  ApplyRead(rows);
  rows.SetCommandText("Select RefNo, DateTime, Sender, MType, Recipient from " + table +
                      " where RefNo = :RefNo and Sender = :Sender");
  rows.Parameters().ParamByName("RefNo").Value = refNo;
  rows.Parameters().ParamByName("Sender").Value = sender;
  rows.Open();
  for (; !rows.Eof(); rows.Next()) {
    const double stored = rows.FieldByName("DateTime").AsDateTime().Days;
    if (stored > wanted + kMsgTimeWindow) break;
    if (stored > wanted - kMsgTimeWindow) {
      result = MatchResult(rows, mode);
      break;
    }
  }
}

}  // namespace mv
