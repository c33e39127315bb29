#include "common/text/lang_changer.h"

#include <algorithm>

#include "platform/codepage/codepage.h"

namespace mv {
namespace {

constexpr uint8_t kEnglish = 1;

std::string_view Choose(uint8_t language, std::string_view english, std::string_view chinese) {
  return language == kEnglish ? english : chinese;
}

std::string Narrow(std::string_view utf8) {
  return codepage::Convert(utf8, codepage::kUtf8, codepage::UserCodePage());
}

}  // namespace

std::string TLangChanger::CStr(std::string_view english, std::string_view chinese) const {
  return Narrow(Choose(language_, english, chinese));
}

std::u16string TLangChanger::CStrW(std::string_view english, std::string_view chinese) const {
  return codepage::WideFromUtf8(Choose(language_, english, chinese));
}

std::string TLangChanger::SStr(std::string_view english, std::string_view chinese) const {
  return Narrow(Choose(systemLanguage_, english, chinese));
}

std::u16string TLangChanger::SStrW(std::string_view english, std::string_view chinese) const {
  return codepage::WideFromUtf8(Choose(systemLanguage_, english, chinese));
}

void TLangChanger::ChineseTogether() { SwitchAll(0); }

void TLangChanger::EnglishTogether() { SwitchAll(kEnglish); }

void TLangChanger::SwitchAll(uint8_t language) {
  language_ = language;
  systemLanguage_ = language;
  for (auto& [id, listener] : listeners_) listener(language);
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
