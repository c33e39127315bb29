// What the search builders should select, worked out apart from them, and a table to run them
// against. The matcher follows what SQLite does with the conditions: "=" and range bounds compare
// exactly (code point order), like ignores the case of ASCII letters only, "_" of like is one
// character and like reads each text only up to its first NUL. Shared by the database tests and
// the injection fuzz target.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace mv::test {

using TRef = std::optional<std::u16string>;  // no value: NULL

// The ids (positions) of `rows` that the wide search `pattern` selects (marks and lone
// surrogates already taken out as the builders do; see SearchText).
std::set<int> ReferenceSelect(std::u16string_view pattern, const std::vector<TRef>& rows);

// Wide `text` as the database holds it once written: each lone surrogate U+FFFD.
std::u16string StoredText(std::u16string_view text);

// The ways user text reaches SQL.
enum class TBuilder {
  StrSQLCond,         // the exact-match condition, literal inline (narrow)
  CheckQuotWide,      // N'...' around the wide CheckQuot
  CheckQuotNarrow,    // '...' around the narrow CheckQuot
  NQuotedWide,        // MV_NQuotedStr, wide
  NQuotedNarrow,      // MV_NQuotedStr, narrow
  WildCardNarrow,     // ChangeWildCard, narrow, quotes doubled
  WildCardWide,       // ChangeWildCard, wide, N'...' literals, quotes doubled
  WildCardMarked,     // ChangeWildCard, wide, marked literals put in the text as they are
  WildCardWNarrow,    // ChangeWildCardW of a narrow pattern
  WildCardWWide,      // ChangeWildCardW of a wide pattern
  AddWildCardField,   // AddWildCard on a dataset, one field
  AddWildCardArrays,  // AddWildCard on a dataset, arrays
  AddWildCardReady,   // AddWildCard of the text form, then of the ready condition
};
inline constexpr int kBuilderCount = 13;

// Table Refs (Id, MsgRef) of `rows` and table Canary with one row on DBMAIN, which must be open.
class TInjectionTable {
 public:
  explicit TInjectionTable(std::vector<TRef> rows);
  // The ids `builder` selects with `wide` (wide builders) or `narrow` (narrow ones, code-page
  // bytes); raises what the database raises.
  std::set<int> Select(TBuilder builder, const std::u16string& wide, const std::string& narrow);
  // The ids `builder` should select.
  std::set<int> Expected(TBuilder builder, const std::u16string& wide,
                         const std::string& narrow) const;
  // Adds a row holding `text` (the last), or takes the last row out again.
  void Push(const std::u16string& text);
  void Pop();
  // Whether the canary row is still there, alone and unchanged.
  static bool CanaryIntact();
  const std::vector<TRef>& Rows() const { return rows_; }

 private:
  std::vector<TRef> rows_;  // as stored
};

}  // namespace mv::test
