#include "common/search/wildcard.h"

#include "common/search/narrow_symbols.h"
#include "common/search/wildcard_terms.h"
#include "common/text/conversions.h"

namespace mv {
namespace {

const search::TLiteralForm& WideForm(bool markWideLiterals) {
  return markWideLiterals ? search::kMarkedLiteral : search::kNationalLiteral;
}

}  // namespace

std::string ChangeWildCard(std::string_view fieldName, std::string_view pattern,
                           bool doubleQuotes) {
  if (pattern.empty()) return {};
  search::TNarrowSymbols symbols;
  const std::u16string field = symbols.Encode(fieldName);
  const std::u16string text = symbols.Encode(pattern);
  return symbols.Decode(search::TranslatePattern(field, text, doubleQuotes, search::kPlainLiteral));
}

std::u16string ChangeWildCard(std::string_view fieldName, std::u16string_view pattern,
                              bool doubleQuotes, bool markWideLiterals) {
  // The translator's marks are the only literal marks of its result: a mark in the pattern could
  // only cut a literal short and let the user's text out of it, so it is dropped.
  const std::u16string text = MV_WideStringToWideVc(MV_WideVcToWideString(pattern));
  if (text.empty()) return {};
  return MV_SetWideVc(search::TranslatePattern(MV_AnsiToWideString(fieldName), text, doubleQuotes,
                                               WideForm(markWideLiterals)));
}

std::u16string ChangeWildCardW(std::string_view fieldName, std::string_view pattern,
                               bool doubleQuotes) {
  return ChangeWildCard(fieldName, MV_AnsiToWideString(pattern), doubleQuotes, false);
}

std::u16string ChangeWildCardW(std::string_view fieldName, std::u16string_view pattern,
                               bool doubleQuotes) {
  return ChangeWildCard(fieldName, pattern, doubleQuotes, false);
}

std::string RangeCondition(std::string_view fieldName, std::string_view term) {
  search::TNarrowSymbols symbols;
  const std::u16string field = symbols.Encode(fieldName);
  return symbols.Decode(search::RangeCondition(field, symbols.Encode(term), search::kPlainLiteral));
}

std::u16string RangeCondition(std::string_view fieldName, std::u16string_view term,
                              bool markWideLiterals) {
  return search::RangeCondition(MV_AnsiToWideString(fieldName), term, WideForm(markWideLiterals));
}

std::string UnescapeRangeTerm(std::string_view term) {
  search::TNarrowSymbols symbols;
  return symbols.Decode(search::UnescapeRangeTerm(symbols.Encode(term)));
}

std::u16string UnescapeRangeTerm(std::u16string_view term) {
  return search::UnescapeRangeTerm(term);
}

}  // namespace mv
