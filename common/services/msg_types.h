// Message types of the mail boxes: the kinds of message the client knows (TMsgStatus) and the
// type of one stored message, found by its key. The counting of codes in a box value, GetCount,
// is declared with the settings loader (common/frame/settings_loader.h), which sizes the
// per-box tables with it.
#pragma once

#include <string>

namespace mv {

// The kinds of message, in this order.
enum TMsgStatus {
  msHKTDLD,
  msHKCTRA,
  msHKCTPR,
  msHKCTSA,
  msCNAD01,
  msHKSI01,
  msHKSO01,
  msEMAIL,
  msHKRTAP,
  msHKRTRM,
  msHKRTMD,
  msHKRTMI,
  msHKRTCR,
  msRTAP01,
  msRTRM01,
  msRTMD01,
  msRTMI01,
  msRTCR01,
  msRTRS01,
  msRTSD01,
  msRTRV01,
  msHKECIC
};

// The separator of the three fields of a message key.
inline constexpr char kMsgKeySeparator = '\x01';
// Half the width of the window in which a stored date-time matches a key: a tenth of a second,
// in days.
inline constexpr double kMsgTimeWindow = 1.1574074074074074e-06;

// The key of a message: its date-time as a decimal day number (days since 1899-12-30, the time
// as fraction, written with every digit needed to read back the same number), its reference
// number and its sender, joined by kMsgKeySeparator. Narrow text as given.
std::string MakeMsgKey(double dateTime, const std::string& refNo, const std::string& sender);

// The type of the message named by `key` in the mail-box table `table` (a table name from the
// program, not from a user: it is written into the query as it stands). The key's fields are
// read with SEGX: field 1 as a day number ("." as decimal point, blanks around allowed;
// EConvertError when it is not a number), field 2 the reference number, field 3 the sender. The
// rows of `table` with that RefNo and Sender are read (columns RefNo, DateTime, Sender, MType,
// Recipient) on the connection DBMAIN, prepared for reading; the reference number and the sender
// are bound as the query parameters :RefNo and :Sender, never pasted into the SQL text, so a quote
// in them can neither break nor change the query. The rows are walked in the order the database
// returns them, which the tables' index on (RefNo, Sender, DateTime) makes ascending by date-time:
// a row whose date-time is more than a tenth of a second after the key's ends the walk without a
// result; the first row within a tenth of a second either side matches. `result` is then its
// MType, or with `mode` 2 MType, Sender and Recipient joined by kMsgKeySeparator; it is empty
// when no row matches. Narrow text in the user's code page. Database errors (EDatabaseError) go
// to the caller; the query is closed in every case.
void GetMsgType(const std::string& table, const std::string& key, int mode, std::string& result);

}  // namespace mv
