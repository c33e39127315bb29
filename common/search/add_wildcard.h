// Search conditions attached to a dataset's or a command's text (both are TMVADOQuery) with the
// user's words as parameters: the condition's literals become " :pTmp" + number parameters of
// wide-string type, the query's own parameters keep their types and values. A pattern that gives
// no condition leaves the query untouched (the array and ready-condition forms excepted, see
// below). None of these opens the query; a bad text fails when it opens.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/db/query.h"

namespace mv {

// Appends the condition of wide carrier `pattern` on `fieldName` to `query`'s text, after
// " Where " (`addWhere`), else " or " (`useOr`), else " " + `joiner` + " " (a non-empty narrow
// joiner), else " and ", and switches its parameter check on.
void AddWildCard(db::TMVADOQuery& query, std::string_view fieldName, std::u16string_view pattern,
                 bool addWhere, bool useOr, std::string_view joiner);

// Appends " " + joiners[i] + " " + the condition of patterns[i] on fieldNames[i] for every i of
// `fieldNames` whose pattern gives a condition (a missing pattern or joiner counts as empty),
// then one blank; with no condition at all just the blank.
void AddWildCard(db::TMVADOQuery& query, std::span<const std::string> fieldNames,
                 std::span<const std::u16string> patterns, std::span<const std::string> joiners);

// Appends a condition built earlier with marked literals (the text form of AddWildCard in
// query_text.h, joiner included) and one blank.
void AddWildCard(db::TMVADOQuery& query, std::u16string_view condition);

}  // namespace mv
