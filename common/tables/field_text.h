// One value of a table file as text: how a value of each value class is written between the tabs
// of a row line, and read back. The forms (table_file.h gives the whole file):
//   NULL     \N
//   Text     UTF-8; "\\" "\t" "\n" "\r" "\0" stand for a backslash, tab, line feed, carriage
//            return and U+0000, "\uXXXX" (four hex digits) for a lone UTF-16 surrogate; every
//            other character stands for itself
//   Integer  decimal, optional "-" (64 bits)
//   Real     the shortest decimal that reads back as the same double ("1e+300", "inf", "nan")
//   Date     the client's day number (days since 1899-12-30, time as fraction), as Real
//   Bool     "1" or "0"
//   Bytes    base64 (RFC 4648, with "=" padding)
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "common/tables/table_def.h"
#include "platform/db/variant.h"

namespace mv::tables {

// A field that is no value of its class (bad UTF-8, an unknown escape, a number that is none).
class EFieldTextError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Appends `value` as a field of class `valueClass` to `out`. Text and national text are written
// from their wide form (narrow text converted from the user's code page). Raises EFieldTextError
// for a value its class cannot hold (text that is no number in an Integer column, for example).
void AppendField(TValueClass valueClass, const db::Variant& value, std::string& out);

// The value the field `text` of class `valueClass` stands for: Text as wide text (UTF-16),
// Integer, Real, Date (TDateTime), Bool, Bytes, or null for "\N". Raises EFieldTextError, saying
// what is wrong, for anything else.
[[nodiscard]] db::Variant ParseField(TValueClass valueClass, std::string_view text);

// Text (wide) in the Text form above, and back; the reverse raises EFieldTextError.
void AppendText(std::u16string_view text, std::string& out);
[[nodiscard]] std::u16string ParseText(std::string_view text);

}  // namespace mv::tables
