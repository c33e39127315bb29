// Check characters of reference numbers, base-36 numbers, the all-digits test and the outside
// check of business registration numbers. Narrow text is bytes in the user's code page; only the
// ASCII digits and upper-case letters count as digits of the base-36 alphabet.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "common/text/str_cut.h"

namespace mv {

// The character tables shared with the service packages; their values and order are fixed.
// Alphas: "A" to "Z" (upper case only). AllDigits: "0" to "9". EvenDigits: 0 2 4 6 8.
// OddDigits: 1 3 5 7 9.
extern const TCharSet Alphas;
extern const TCharSet AllDigits;
extern const TCharSet EvenDigits;
extern const TCharSet OddDigits;
// The base-36 digits: "0" to "9" at 0 ..= 9, then "A" to "Z" at 10 ..= 35.
extern const std::array<std::string_view, 36> Letter36;
// J L N P R T B D F H at 0 ..= 9.
extern const std::array<std::string_view, 10> LetterY;
// strChineseTable, the fourth exported table, is part of the shared state
// (common/frame/shared_state.h).

// True when every byte of `s` is a digit "0" to "9". The empty text has no byte that is not a
// digit, so it gives true.
bool ChkDigits(std::string_view s);

// The index of `c` in Letter36 (0 ..= 35); -1 for any other character, lower-case letters
// included.
int Get36(char c);

// The first character of table[i]; `high` is the table's highest index. No bounds check: the
// caller passes 0 <= i <= high with table[i] not empty.
char Put36Y(int i, std::span<const std::string_view> table, int high);

// `n` written in base 36 (digits 0-9, then A-Z, most significant first); a negative number
// counts as 0, so the result is never empty ("0" for 0, "Z" for 35, "10" for 36).
std::string mod36(int64_t n);

// The weighted modulus-11 check character of the first 13 characters of `s`: weights 2, 3, ...,
// 10, 2, 3, 4, 5 from position 13 down to position 1, whatever the length of `s` (positions past
// its end and characters outside Letter36 add nothing). Never "0": remainder 0 gives "B", 1 "A",
// 2 to 10 give "9" down to "1".
char Modulus11(std::string_view s);

// The modulus-36 check character of the first 13 characters of `s`: odd positions (from 1) weigh
// 1, even positions 7; characters outside Letter36 add nothing. A total divisible by 36 gives "0".
char Modulus36(std::string_view s);

// Asks the outside check library whether `s` is a valid business registration number. The
// library is the file ServerPath + ModuleFileName("ChkBRN") (platform/modules: "ChkBRN.so" on
// POSIX, "ChkBRN.dll" on Windows), name found without regard to case; its export "ChkBRN" takes
// the number without leading and trailing blanks as a zero-terminated narrow text and answers
// with a one-byte Boolean. The library is unloaded again in every case. Every failure (library
// or export missing, the call throwing) gives true: without the library every number passes.
bool ChkBRNDigit(std::string_view s);

// The type of the export "ChkBRN" of the outside check library (a C function; nonzero = valid).
using TChkBRNProc = uint8_t (*)(const char* number);

}  // namespace mv
