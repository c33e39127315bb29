#include "common/text/lang_changer.h"

#include <algorithm>

#include "common/frame/shared_state.h"
#include "platform/codepage/codepage.h"
#include "platform/codepage/simplified.h"

namespace mv {
namespace {

template <typename Text>
Text Choose(uint8_t language, Text english, Text chinese) {
  return language == kLangEnglish ? english : chinese;
}

std::string NarrowPair(uint8_t language, std::string_view english, std::string_view chinese) {
  return ShownNarrow(language, codepage::WideFromUtf8(Choose(language, english, chinese)));
}

std::u16string WidePair(uint8_t language, std::string_view english, std::string_view chinese) {
  return ShownWide(language, codepage::WideFromUtf8(Choose(language, english, chinese)));
}

}  // namespace

std::u16string ShownWide(uint8_t language, std::u16string_view text) {
  if (language == kLangSimplified) return codepage::ToSimplified(text);
  return std::u16string(text);
}

std::string ShownNarrow(uint8_t language, std::u16string_view text) {
  if (language == kLangSimplified)
    return codepage::FromWide(codepage::ToSimplified(text), codepage::kGbk);
  return codepage::FromWide(text, codepage::UserCodePage());
}

uint8_t TLangChanger::SystemLanguage() const {
  return SysLanguageMode;
}

std::string TLangChanger::CStr(std::string_view english, std::string_view chinese) const {
  return NarrowPair(language_, english, chinese);
}

std::u16string TLangChanger::CStrW(std::string_view english, std::string_view chinese) const {
  return WidePair(language_, english, chinese);
}

std::string TLangChanger::CStr(std::u16string_view english, std::u16string_view chinese) const {
  return ShownNarrow(language_, Choose(language_, english, chinese));
}

std::u16string TLangChanger::CStrW(std::u16string_view english, std::u16string_view chinese) const {
  return ShownWide(language_, Choose(language_, english, chinese));
}

std::string TLangChanger::SStr(std::string_view english, std::string_view chinese) const {
  return NarrowPair(SystemLanguage(), english, chinese);
}

std::u16string TLangChanger::SStrW(std::string_view english, std::string_view chinese) const {
  return WidePair(SystemLanguage(), english, chinese);
}

std::string TLangChanger::SStr(std::u16string_view english, std::u16string_view chinese) const {
  return ShownNarrow(SystemLanguage(), Choose(SystemLanguage(), english, chinese));
}

std::u16string TLangChanger::SStrW(std::u16string_view english, std::u16string_view chinese) const {
  return ShownWide(SystemLanguage(), Choose(SystemLanguage(), english, chinese));
}

std::u16string TLangChanger::SysLangUnicodeStr(std::string_view english,
                                               std::string_view chinese) const {
  const uint8_t language = SystemLanguage();
  return ShownWide(
      language, codepage::ToWide(Choose(language, english, chinese), codepage::SystemCodePage()));
}

void TLangChanger::ChineseTogether() {
  SwitchAll(kLangChinese);
}

void TLangChanger::EnglishTogether() {
  SwitchAll(kLangEnglish);
}

void TLangChanger::SwitchAll(uint8_t language) {
  language_ = language;
  std::vector<int> ids;
  for (const auto& entry : listeners_) ids.push_back(entry.first);
  for (int id : ids) {
    auto it = std::find_if(listeners_.begin(), listeners_.end(),
                           [id](const auto& entry) { return entry.first == id; });
    if (it == listeners_.end()) continue;
    SwitchListener listener = it->second;  // a copy: the listener may change the list
    listener(language);
  }
}

int TLangChanger::AddSwitchListener(SwitchListener listener) {
  listeners_.emplace_back(nextListenerId_, std::move(listener));
  return nextListenerId_++;
}

void TLangChanger::RemoveSwitchListener(int id) {
  std::erase_if(listeners_, [id](const auto& entry) { return entry.first == id; });
}

TLangChanger& LangChanger() {
  static TLangChanger changer;
  return changer;
}

}  // namespace mv
