#include "common/search/wildcard_terms.h"

#include "platform/db/wide_literals.h"

namespace mv::search {
namespace {

constexpr std::u16string_view kRangeSign = u"..";
constexpr char16_t kAlternativeSign = u'|';

// The opening of a literal and its text. A quoted literal's colons after an odd number of double
// quotes are doubled, as the database layer reads "::" there as one ":"; a marked literal is
// bound as it stands.
std::u16string Opened(std::u16string_view text, const TLiteralForm& form) {
  std::u16string out(form.open);
  out += form.marked ? std::u16string(text) : db::ColonsDoubledAfterOddDoubleQuote(text);
  return out;
}

std::u16string Literal(std::u16string_view text, const TLiteralForm& form) {
  std::u16string out = Opened(text, form);
  out += form.close;
  return out;
}

// The literal of a like condition with the escape clause: in the quoted forms the clause takes
// the place of the closing quote, after marks it follows the closing mark.
std::u16string EscapedLiteral(std::u16string_view text, const TLiteralForm& form) {
  std::u16string out = Opened(text, form);
  out += form.marked ? std::u16string(form.close) + u" Escape '" : u"' Escape '";
  out += WildEscapeChar;
  out += u'\'';
  return out;
}

std::u16string Comparison(std::u16string_view field, std::u16string_view op,
                          std::u16string_view literal) {
  std::u16string out = u"(";
  out += field;
  out += op;
  out += literal;
  out += u')';
  return out;
}

bool OnlyWildcardsOrBlank(std::u16string_view term) {
  const size_t first = term.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return true;
  const size_t last = term.find_last_not_of(u' ');
  return term.substr(first, last - first + 1).find_first_not_of(u'%') == std::u16string_view::npos;
}

std::u16string TermCondition(std::u16string_view field, std::u16string_view term,
                             const TLiteralForm& form) {
  if (term.empty()) return {};
  if (term.find(kRangeSign) != std::u16string_view::npos) return RangeCondition(field, term, form);
  return SimpleCondition(field, term, form);
}

std::u16string Alternatives(std::u16string_view field, std::u16string_view rest,
                            const TLiteralForm& form) {
  std::u16string result;
  int joins = 0;
  while (!rest.empty()) {
    const size_t bar = rest.find(kAlternativeSign);
    const std::u16string_view term = rest.substr(0, bar);
    rest = bar == std::u16string_view::npos ? std::u16string_view() : rest.substr(bar + 1);
    std::u16string condition = TermCondition(field, term, form);
    if (result.empty()) {
      result = std::move(condition);
    } else if (!condition.empty()) {
      result += u" or " + condition;
      ++joins;
    }
  }
  return joins > 0 ? u"(" + result + u")" : result;
}

}  // namespace

const TLiteralForm kPlainLiteral{u"'", u"'", false};
const TLiteralForm kNationalLiteral{u"N'", u"'", false};
const TLiteralForm kMarkedLiteral{u"\x02", u"\x02", true};

std::u16string EscapePattern(std::u16string_view pattern, bool doubleQuotes) {
  std::u16string out;
  out.reserve(pattern.size() + pattern.size() / 4);
  for (char16_t c : pattern) {
    switch (c) {
      case u'!':
      case u'_':
      case u'%':
      case u'[':
        out += WildEscapeChar;
        out += c;
        break;
      case u'\'':
        out += doubleQuotes ? u"''" : u"'";
        break;
      case u'?':
        out += u'_';
        break;
      case u'*':
        out += u'%';
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::u16string UnescapeRangeTerm(std::u16string_view term) {
  std::u16string out;
  out.reserve(term.size());
  for (size_t i = 0; i < term.size(); ++i) {
    const char16_t c = term[i];
    if (c == WildEscapeChar) {
      if (++i < term.size()) out += term[i];
    } else {
      out += c == u'_' ? u'?' : c == u'%' ? u'*' : c;
    }
  }
  return out;
}

std::u16string RangeCondition(std::u16string_view field, std::u16string_view term,
                              const TLiteralForm& form) {
  const std::u16string plain = UnescapeRangeTerm(term);
  const size_t at = plain.find(kRangeSign);
  if (at == std::u16string::npos || plain.size() <= kRangeSign.size()) return {};
  const std::u16string_view lo = std::u16string_view(plain).substr(0, at);
  const std::u16string_view hi = std::u16string_view(plain).substr(at + kRangeSign.size());
  std::u16string low = lo.empty() ? u"" : Comparison(field, u" >= ", Literal(lo, form));
  std::u16string high = hi.empty() ? u"" : Comparison(field, u" <= ", Literal(hi, form));
  if (low.empty() || high.empty()) return low + high;
  return u"(" + low + u" and " + high + u")";
}

std::u16string SimpleCondition(std::u16string_view field, std::u16string_view term,
                               const TLiteralForm& form) {
  if (term.find(WildEscapeChar) != std::u16string_view::npos)
    return Comparison(field, u" like ", EscapedLiteral(term, form));
  if (term.find_first_of(u"%_") != std::u16string_view::npos)
    return Comparison(field, u" like ", Literal(term, form));
  return Comparison(field, u" = ", Literal(term, form));
}

std::u16string TranslatePattern(std::u16string_view field, std::u16string_view pattern,
                                bool doubleQuotes, const TLiteralForm& form) {
  if (pattern.empty()) return {};
  const std::u16string text = EscapePattern(pattern, doubleQuotes);
  if (text.find(kAlternativeSign) != std::u16string::npos ||
      text.find(kRangeSign) != std::u16string::npos)
    return Alternatives(field, text, form);
  std::u16string result = SimpleCondition(field, text, form);
  if (!OnlyWildcardsOrBlank(text)) return result;
  // A match-all pattern finds the rows without a value as well.
  return u"(" + result + u" or (" + std::u16string(field) + u" IS NULL))";
}

}  // namespace mv::search
