#include "modules/mv_widevc.h"

#include "modules/mv_codepage.h"
#include "modules/mv_str_quote.h"

namespace mv::modules {
namespace {

std::u16string WithoutUnpairedMark(std::u16string_view w) {
  return db::WithPairedLiteralMarks(w);
}

std::u16string WithoutMarks(std::u16string_view w) {
  return db::WithoutLiteralMarks(w);
}

}  // namespace

std::u16string MV_SetWideVc(std::u16string_view w) {
  return WithoutUnpairedMark(w);
}

std::u16string MV_SetWideVc(std::string_view s) {
  return MV_SetWideVc(MV_AnsiToWideString(s));
}

void MV_GetWideVc(std::u16string_view vc, std::u16string& value) {
  value = WithoutMarks(vc);
}

void MV_GetWideVc(std::u16string_view vc, std::string& value) {
  value = MV_WideStringToAnsi(WithoutMarks(vc));
}

std::u16string MV_WideVcToWideString(std::u16string_view vc) {
  return std::u16string(vc);
}

std::string MV_WideVcToAnsiString(std::u16string_view vc) {
  return MV_WideStringToAnsi(vc);
}

std::u16string MV_WideStringToWideVc(std::u16string_view w) {
  return WithoutMarks(w);
}

std::u16string MV_AnsiStringToWideVc(std::string_view s) {
  return WithoutMarks(MV_AnsiToWideString(s));
}

std::u16string MV_WideVcLiteralsToSql(std::u16string_view vc) {
  const std::u16string text = WithoutUnpairedMark(vc);
  std::u16string out;
  out.reserve(text.size() + 8);
  size_t from = 0;
  for (;;) {
    const size_t open = text.find(WideLiteralMark, from);
    if (open == std::u16string::npos) break;
    const size_t close = text.find(WideLiteralMark, open + 1);  // exists: the marks pair up
    out.append(text, from, open - from);
    out += MV_NQuotedStr(std::u16string_view(text).substr(open + 1, close - open - 1));
    from = close + 1;
  }
  out.append(text, from);
  return out;
}

}  // namespace mv::modules
