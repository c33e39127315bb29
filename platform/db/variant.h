// The value of a field or a parameter: null, a whole number, a floating-point number, narrow text
// (bytes in the user's code page), wide text (UTF-16), a date-time, a Boolean or bytes.
// A date-time is the client's date type: days since 1899-12-30 with the time of day as fraction.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace mv::db {

// A value that cannot be read in the form asked for (text that is no number, bytes as a number).
class EVariantError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Days since 1899-12-30, the time of day as fraction.
struct TDateTime {
  double Days = 0;
  bool operator==(const TDateTime&) const = default;
};

class Variant {
 public:
  enum class Kind { Null, Integer, Float, Text, WideText, DateTime, Bool, Bytes };

  Variant() = default;
  Variant(int v) : value_(int64_t{v}) {}
  Variant(int64_t v) : value_(v) {}
  Variant(double v) : value_(v) {}
  Variant(bool v) : value_(v) {}
  Variant(std::string v) : value_(std::move(v)) {}
  Variant(const char* v) : value_(std::string(v)) {}
  Variant(std::u16string v) : value_(std::move(v)) {}
  Variant(const char16_t* v) : value_(std::u16string(v)) {}
  Variant(TDateTime v) : value_(v) {}
  Variant(std::vector<uint8_t> v) : value_(std::move(v)) {}

  // What the value holds.
  Kind kind() const { return static_cast<Kind>(value_.index()); }
  bool IsNull() const { return kind() == Kind::Null; }

  // The value as a whole number: floats are truncated, text must hold a decimal number (blanks
  // around allowed), a date-time gives its day; null gives 0. Bytes raise EVariantError.
  int64_t AsInteger() const;
  // The value as a floating-point number (text in the C locale's notation); null gives 0.
  // Bytes and text that is no number raise EVariantError.
  double AsFloat() const;
  // The value as narrow text in the user's code page: numbers in shortest round-trip notation,
  // a date-time as "yyyy-mm-dd hh:nn:ss" (the time left out when it is midnight), a Boolean as
  // "True" / "False", null as "", bytes as they stand.
  std::string AsString() const;
  // The same as wide text (UTF-16); narrow text is converted from the user's code page.
  std::u16string AsWideString() const;
  // The value as a date-time: a number is taken as a day number, text must read as
  // "yyyy-mm-dd[ hh:nn[:ss]]"; null gives day 0. Anything else raises EVariantError.
  TDateTime AsDateTime() const;
  // The value as a Boolean: a number is true when not 0, text "true"/"1" (any case) is true and
  // "false"/"0"/"" false; null is false. Anything else raises EVariantError.
  bool AsBool() const;
  // The bytes held; text gives its narrow bytes; anything else raises EVariantError.
  std::vector<uint8_t> AsBytes() const;

  bool operator==(const Variant&) const = default;

 private:
  std::variant<std::monostate, int64_t, double, std::string, std::u16string, TDateTime, bool,
               std::vector<uint8_t>>
      value_;
};

}  // namespace mv::db
