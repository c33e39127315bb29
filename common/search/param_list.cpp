#include "common/search/param_list.h"

#include <algorithm>

#include "common/text/conversions.h"

namespace mv {
namespace {

constexpr std::u16string_view kParamPrefix = u" :pTmp";

bool MentionsEscape(std::u16string_view text) {
  std::u16string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char16_t c) { return c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c; });
  return lower.find(u"escape") != std::u16string::npos;
}

// The walk over a condition: what is inside the open literal, what came since the last literal
// that became a parameter.
struct TLiteralWalk {
  std::u16string out;
  std::u16string literal;
  std::u16string after;
  bool inside = false;
  bool parameterised = false;

  void Take(char16_t c) {
    if (inside) {
      literal += c;
      after.clear();
    } else {
      out += c;
      if (parameterised) after += c;
    }
  }

  void CloseLiteral(TParamList& paramList) {
    if (MentionsEscape(after)) {
      out += u'\'' + literal + u'\'';
      parameterised = false;
    } else {
      if (!out.empty()) out.pop_back();
      out += kParamPrefix;
      const std::string number = std::to_string(paramList.size() + 1);
      out.append(number.begin(), number.end());
      paramList.push_back({db::ftWideString, false, db::Variant(literal)});
      parameterised = true;
    }
    literal.clear();
    after.clear();
  }
};

}  // namespace

std::u16string GetWildCard(std::u16string_view condition, bool useMark, TParamList& paramList) {
  const char16_t quote = useMark ? WideLiteralMark : u'\'';
  TLiteralWalk walk;
  for (char16_t c : condition) {
    if (c != quote) {
      walk.Take(c);
    } else if (!walk.inside) {
      walk.inside = true;
    } else {
      walk.inside = false;
      walk.CloseLiteral(paramList);
    }
  }
  return walk.out;
}

void GetParamListValue(const db::TParameters& parameters, TParamList& paramList) {
  for (int i = 0; i < parameters.Count(); ++i)
    paramList.push_back({parameters[i].DataType, true, parameters[i].Value});
}

void SetParamListValue(db::TMVADOQuery& query, TParamList& paramList) {
  for (size_t i = 0; i < paramList.size(); ++i) {
    const TParamEntry& entry = paramList[i];
    const int index = static_cast<int>(i);
    db::TParameter& parameter = query.Parameters()[index];
    parameter.DataType = entry.DataType;
    if (entry.DataType == db::ftWideString) {
      query.SetUnicodeParamValue(index, entry.Value.AsWideString(), !entry.Existing);
    } else {
      parameter.Value = entry.Value;
    }
  }
  paramList.clear();
}

}  // namespace mv
