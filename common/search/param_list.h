// Saved query parameters and the turning of marked literals into parameters. While query code
// replaces a query's text, the parameters it had are kept in a TParamList and put back in order,
// followed by the parameters made from the condition's literals (" :pTmp1", " :pTmp2" ...).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/db/field_types.h"
#include "platform/db/parameters.h"
#include "platform/db/query.h"
#include "platform/db/variant.h"

namespace mv {

// One saved parameter: its type, whether the query had it before, its value.
struct TParamEntry {
  db::TFieldType DataType = db::ftUnknown;
  bool Existing = false;
  db::Variant Value;
};

// The saved parameters in parameter order; the caller owns the list.
using TParamList = std::vector<TParamEntry>;

// Wide `condition` with each literal made a parameter: a literal is a stretch between two
// WideLiteralMark characters (`useMark`) or single quotes. The blank before it is replaced by
// " :pTmp" + number, numbers going on from the size of `paramList`, and an entry
// {ftWideString, not existing, the literal's text} is appended. A literal closed while the text
// since the last parameter holds "escape" (any case) stays inline in plain quotes.
std::u16string GetWildCard(std::u16string_view condition, bool useMark, TParamList& paramList);

// Appends to `paramList` one existing entry per parameter of `parameters`, in index order, with
// its type and a copy of its value.
void GetParamListValue(const db::TParameters& parameters, TParamList& paramList);

// Gives parameter i of `query` (a dataset or a command) the type and value of entry i: wide
// strings through SetUnicodeParamValue (a new entry's value read as a carrier), other types
// assigned as they are; then empties the list. Raises EDatabaseError when the query has fewer
// parameters than the list.
void SetParamListValue(db::TMVADOQuery& query, TParamList& paramList);

}  // namespace mv
