#include "platform/db/query.h"

#include "platform/codepage/codepage.h"
#include "platform/db/wide_literals.h"

namespace mv::db {

void TMVADOQuery::SetCommandText(std::u16string_view text) {
  commandText_ = text;
  if (paramCheck_) parameters_.Rebuild(ParameterNames(commandText_));
  CommandTextChanged();
}

void TMVADOQuery::SetCommandText(std::string_view text) {
  SetCommandText(codepage::ToWide(text, codepage::UserCodePage()));
}

void TMVADOQuery::SetUnicodeParamValue(int index, std::u16string_view value, bool fromCarrier) {
  TParameter& p = parameters_[index];
  std::u16string text = fromCarrier ? WithoutLiteralMarks(value) : std::u16string(value);
  p.DataType = ftWideString;
  p.Value = Variant(std::move(text));
}

}  // namespace mv::db
