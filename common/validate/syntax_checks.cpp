#include "common/validate/syntax_checks.h"

#include <algorithm>
#include <stdexcept>

#include "common/frame/errors.h"
#include "common/text/conversions.h"
#include "common/text/lang_changer.h"
#include "common/text/message_dialogs.h"
#include "common/text/str_utils.h"
#include "common/text/text_resources.h"
#include "common/validate/check_digits.h"
#include "common/validate/chinese_code_list.h"
#include "platform/codepage/codepage.h"
#include "platform/codepage/narrow_chars.h"
#include "platform/db/dataset.h"
#include "platform/system/machine.h"

namespace mv {
namespace {

constexpr int kRefusedCharacterText = 2165;

// The English character set: printable ASCII, line feed and carriage return.
bool IsEnglish(unsigned code) {
  return (code >= 32 && code <= 126) || code == 10 || code == 13;
}

const TCharSet kSyntaxSet =
    MakeCharSet(" 0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ!\"%&'()*+,-./:;<=>?\r\n");

// The character of wide `text` at `at`: both units of a surrogate pair, else the one unit.
std::u16string CharacterAt(std::u16string_view text, size_t at) {
  const bool pair = text[at] >= 0xD800 && text[at] <= 0xDBFF && at + 1 < text.size() &&
                    text[at + 1] >= 0xDC00 && text[at + 1] <= 0xDFFF;
  return std::u16string(text.substr(at, pair ? 2 : 1));
}

// Tells the user that `character` is not allowed in the field `label`, then aborts quietly.
[[noreturn]] void Refuse(std::u16string_view label, std::u16string character) {
  const modules::TFormatArg args[] = {std::u16string(label), std::move(character)};
  MsgDlg(sys::ApplicationTitle(), LoadCStrW(kRefusedCharacterText, args), dialogs::mtError,
         {dialogs::mbOK});
  throw EAbort();
}

// Whether one (upper-cased) value unit satisfies one mask unit. The letter, digit and "O" rules
// look at the low byte of the unit only, so U+4E41 passes "A" and U+3431 passes "9".
bool FitsMask(unsigned value, unsigned mask, const TCharSet& others) {
  const unsigned low = value & 0xFF;
  switch (mask) {
    case 'A':
      return Alphas.test(low);
    case '9':
      return AllDigits.test(low);
    case 'X':
      return Alphas.test(low) || AllDigits.test(low);
    case 'O':
      return others.test(low);
    case '*':
      return true;
    default:
      return value == mask;
  }
}

// `upper` is the value already upper-cased, of the value's length.
template <class Char>
bool FitsFormat(std::basic_string_view<Char> upper, std::basic_string_view<Char> mask,
                const TCharSet& others) {
  using Code = std::make_unsigned_t<Char>;
  for (size_t i = 0; i < upper.size(); ++i) {
    if (!FitsMask(static_cast<Code>(upper[i]), static_cast<Code>(mask[i]), others)) return false;
  }
  return true;
}

bool IsDigit(char16_t c) {
  return c >= '0' && c <= '9';
}

// True for blanks, optional sign, digits with an optional "." and fraction (at least one digit),
// an optional exponent, blanks: the texts that convert to a floating-point number.
bool IsFloatText(std::u16string_view s) {
  size_t i = 0;
  const auto skipBlanks = [&] {
    while (i < s.size() && s[i] == ' ') ++i;
  };
  const auto digits = [&] {
    const size_t from = i;
    while (i < s.size() && IsDigit(s[i])) ++i;
    return i - from;
  };
  skipBlanks();
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  size_t mantissa = digits();
  if (i < s.size() && s[i] == '.') {
    ++i;
    mantissa += digits();
  }
  if (mantissa == 0) return false;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    if (digits() == 0) return false;
  }
  skipBlanks();
  return i == s.size();
}

}  // namespace

void CheckFieldLength(std::u16string_view text, int maxLength, std::string_view caption) {
  if (static_cast<int64_t>(text.size()) <= maxLength) return;
  std::string message =
      LangChanger().CStr("Your input is too long, please shorten.", "你所輸入之資料太長。請縮短。");
  if (!caption.empty()) message = std::string(caption) + ": " + message;
  throw std::runtime_error(message);
}

void ChkEngCharSet(std::string_view text, std::u16string_view fieldLabel) {
  const auto bad = std::find_if(text.begin(), text.end(),
                                [](char c) { return !IsEnglish(static_cast<unsigned char>(c)); });
  if (bad == text.end()) return;
  std::string_view character = text.substr(static_cast<size_t>(bad - text.begin()));
  const int codePage = codepage::UserCodePage();
  if (static_cast<unsigned char>(*bad) >= 0x80) {
    const std::vector<size_t> starts = codepage::CharStarts(character, codePage);
    character = character.substr(0, starts.size() > 1 ? starts[1] : character.size());
  } else {
    character = character.substr(0, 1);
  }
  Refuse(fieldLabel, codepage::ToWide(character, codePage));
}

void ChkSyntax(std::u16string_view text, std::u16string_view fieldLabel) {
  // One unit for one unit, so position i of the upper case is position i of the text as typed.
  const std::u16string upper = MV_WideUpperCase(text);
  for (size_t i = 0; i < upper.size(); ++i) {
    if (upper[i] >= 0x80 || !kSyntaxSet.test(upper[i])) Refuse(fieldLabel, CharacterAt(text, i));
  }
}

void ChkChiCharset(std::u16string_view text, std::u16string_view fieldLabel, char& charset) {
  const TChineseCodeList& codeList = InstalledChineseCodeList();
  bool common = false;
  bool traditional = false;
  bool simplified = false;
  for (size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (c <= 127) {
      if (!IsEnglish(c)) Refuse(fieldLabel, CharacterAt(text, i));
      continue;
    }
    if (codeList.Empty()) continue;
    switch (codeList.ClassOf(c)) {
      case kCharsetCommon:
        common = true;
        break;
      case kCharsetTraditional:
        traditional = true;
        break;
      case kCharsetSimplified:
        simplified = true;
        break;
      default:
        Refuse(fieldLabel, CharacterAt(text, i));
    }
  }
  const bool hasTraditional = charset == kCharsetTraditional || traditional;
  const bool hasSimplified = charset == kCharsetSimplified || simplified;
  if (charset == kCharsetMixed || (hasTraditional && hasSimplified)) {
    charset = kCharsetMixed;
  } else if (hasTraditional) {
    charset = kCharsetTraditional;
  } else if (hasSimplified) {
    charset = kCharsetSimplified;
  } else if (charset == kCharsetCommon || common) {
    charset = kCharsetCommon;
  } else {
    charset = kCharsetEnglish;
  }
}

bool IsTabDelimited(std::u16string_view line) {
  // Pairs of adjacent quotes (escaped quotes) go first, left to right.
  std::u16string text;
  text.reserve(line.size());
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"' && i + 1 < line.size() && line[i + 1] == '"') {
      ++i;
    } else {
      text += line[i];
    }
  }
  // Then every quoted stretch; past a quote that no other closes, the rest of the line counts.
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\t') return true;
    if (text[i] != '"') continue;
    const size_t closing = text.find(u'"', i + 1);
    if (closing != std::u16string::npos) i = closing;
  }
  return false;
}

void ChkSynField(db::TMVADODataSet& dataSet, const std::vector<std::string>& exclude,
                 char& charset) {
  for (int index = 0; index < dataSet.FieldCount(); ++index) {
    db::TField& field = dataSet.Fields(index);
    const bool excluded = std::any_of(exclude.begin(), exclude.end(), [&](const std::string& name) {
      return MV_WideSameText(field.FieldName(), name);
    });
    if (excluded || field.Calculated()) continue;
    switch (field.DataType()) {
      case db::ftWideString:
        ChkChiCharset(dataSet.GetUnicodeFieldValue(index, false),
                      MV_AnsiStringToWideVc(field.DisplayLabel()), charset);
        break;
      case db::ftString:
      case db::ftBytes:
      case db::ftVarBytes:
      case db::ftFixedChar:
        ChkEngCharSet(field.AsString(), MV_AnsiStringToWideVc(field.DisplayLabel()));
        break;
      default:
        break;
    }
  }
}

void ChkSynField(db::TMVADODataSet& dataSet, const std::vector<std::string>& exclude) {
  char charset = kCharsetEnglish;
  ChkSynField(dataSet, exclude, charset);
}

bool HasChinese(std::string_view text) {
  return MV_HasChinese(text);
}

bool HasChinese(std::u16string_view text) {
  return MV_HasChinese(text);
}

bool ChkFormat(std::u16string_view value, std::u16string_view mask, const TCharSet& others) {
  if (!NotEmpty(value) || value.size() != mask.size()) return false;
  return FitsFormat<char16_t>(MV_WideUpperCase(value), mask, others);
}

bool ChkFormat(std::string_view value, std::string_view mask, const TCharSet& others) {
  if (!NotEmpty(value) || value.size() != mask.size()) return false;
  return FitsFormat<char>(ECharUpperCase(value), mask, others);
}

bool ChkFloatFmt_NDotDotXCommaY(std::u16string_view value, int n, int x) {
  if (n < 0 || x < 0 || x > n || !IsFloatText(value)) return false;
  // The masks hold nines and at most one point, so the padded value fits one of them exactly
  // when it is digits with at most one point: without a point it must fit n nines (padding
  // reaches n characters), with one it must fit n + 1 characters with d = the digits after the
  // point, 1 <= d <= x.
  const size_t point = value.find(u'.');
  const size_t width = static_cast<size_t>(n);
  const auto digitsBesidePoint = [&] {
    for (size_t i = 0; i < value.size(); ++i) {
      if (i != point && !IsDigit(value[i])) return false;
    }
    return true;
  };
  if (point == std::u16string_view::npos) return value.size() <= width && digitsBesidePoint();
  const size_t decimals = value.size() - point - 1;
  return value.size() <= width + 1 && decimals >= 1 && decimals <= static_cast<size_t>(x) &&
         digitsBesidePoint();
}

}  // namespace mv
