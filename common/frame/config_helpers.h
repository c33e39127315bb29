// Small routines over the system configuration file ServerPath + Global_Merovan_Ini and over
// tuples, texts of the form name "=" value.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "common/frame/string_list.h"

namespace mv {

// The name part of a tuple (text before the first "="); the whole text when it has no "=".
std::string TupleName(std::string_view tuple);
// The value part of a tuple (text after the first "="); empty when it has no "=".
std::string TupleValue(std::string_view tuple);

// Replaces every line that contains "=" by its value; other lines stay.
void GetStringListValue(TStringList& list);
// A new list, owned by the caller, of the name of every line (the whole line where it has no
// "="), in the same order.
std::unique_ptr<TStringList> StringListNames(const TStringList& list);

// The integer of [section] key in the system configuration file; 0 when missing or not a number.
int32_t GetIniIntegerValue(std::string_view section, std::string_view key);
// Writes the integer to [section] key of the system configuration file under its write lock,
// keeping what other writers wrote meanwhile (throws ini::EIniFileException when the file cannot
// be written or the lock was not given up within ini::kWriteLockTimeout).
void SetIniIntegerValue(std::string_view section, std::string_view key, int32_t value);
// `list` receives all lines of [section] of the system configuration file as tuples.
void LoadStringListFromIni(std::string_view section, TStringList& list);

// The next running number or a configured text from the system configuration file:
//  - section "TDEC" (any case): the key holds the last number issued (1 when missing); the
//    number one above it is written back and returned in base 36, at least four characters,
//    padded with "0" on the left ("0002" for a missing key, "000Z" after 34, "10000" after
//    1679615 - never cut);
//  - otherwise an empty key gives "ERRORINI", and any other key its text, "ERRORINI" when it is
//    missing.
// The counter is read, counted and written back under the file's write lock (waiting up to
// ini::kWriteLockTimeout for another writer; ini::EIniFileException after that or when the file
// cannot be written), so any number of processes sharing the installation receive distinct
// numbers without gaps, each process's in rising order.
std::string GetIniSeq(std::string_view section, std::string_view key);

// A grid whose cells can be set: the part of a string grid GetIniGrd needs.
template <typename Text>
class TGridCells {
 public:
  virtual ~TGridCells() = default;
  virtual void SetCell(int column, int row, const Text& text) = 0;
  virtual void SetRowCount(int rows) = 0;
};

// Fills two columns of `grid` from `items`, a text of comma-terminated items: item i goes to
// cell (column, row + i) and, when `list` has a line i, that line to (column + 1, row + i). Text
// after the last comma is ignored. The grid's row count becomes the number of items (the start
// row is not added).
void GetIniGrd(std::string_view items, const TStringList& list, int column, int row,
               TGridCells<std::string>& grid);
void GetIniGrd(std::u16string_view items, const std::vector<std::u16string>& list, int column,
               int row, TGridCells<std::u16string>& grid);

}  // namespace mv
