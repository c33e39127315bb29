#include "common/search/add_wildcard.h"

#include "common/search/param_list.h"
#include "common/search/wildcard.h"
#include "common/text/conversions.h"

namespace mv {
namespace {

std::u16string ConnectingWord(bool addWhere, bool useOr, std::string_view joiner) {
  if (addWhere) return u" Where ";
  if (useOr) return u" or ";
  if (joiner.empty()) return u" and ";
  // Appended piece by piece, as operator+ chains on temporaries trip GCC 12's -Wrestrict at -O3.
  std::u16string word(1, u' ');
  word += MV_AnsiToWideString(joiner);
  word += u' ';
  return word;
}

// Appends `condition` with its literals made parameters, then `tail`; the query's own parameters
// come first and keep their types and values.
void AttachCondition(db::TMVADOQuery& query, std::u16string_view condition,
                     std::u16string_view tail) {
  TParamList saved;
  GetParamListValue(query.Parameters(), saved);
  query.SetParamCheck(true);
  query.SetCommandText(query.CommandText() + GetWildCard(condition, true, saved) +
                       std::u16string(tail));
  SetParamListValue(query, saved);
}

}  // namespace

void AddWildCard(db::TMVADOQuery& query, std::string_view fieldName, std::u16string_view pattern,
                 bool addWhere, bool useOr, std::string_view joiner) {
  const std::u16string condition = ChangeWildCard(fieldName, pattern, false, true);
  if (condition.empty()) return;
  query.SetParamCheck(true);
  query.SetCommandText(query.CommandText() + ConnectingWord(addWhere, useOr, joiner));
  AttachCondition(query, condition, u"");
}

void AddWildCard(db::TMVADOQuery& query, std::span<const std::string> fieldNames,
                 std::span<const std::u16string> patterns, std::span<const std::string> joiners) {
  std::u16string conditions;
  for (size_t i = 0; i < fieldNames.size(); ++i) {
    const std::u16string_view pattern =
        i < patterns.size() ? std::u16string_view(patterns[i]) : std::u16string_view();
    const std::u16string condition = ChangeWildCard(fieldNames[i], pattern, false, true);
    if (condition.empty()) continue;
    const std::string_view joiner =
        i < joiners.size() ? std::string_view(joiners[i]) : std::string_view();
    conditions += u' ';
    conditions += MV_AnsiToWideString(joiner);
    conditions += u' ';
    conditions += condition;
  }
  AttachCondition(query, conditions, u" ");
}

void AddWildCard(db::TMVADOQuery& query, std::u16string_view condition) {
  AttachCondition(query, condition, u" ");
}

}  // namespace mv
