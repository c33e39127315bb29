#include "common/text/text_resources.h"

#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "modules/mv_texts.h"
#include "platform/codepage/codepage.h"

namespace mv {
namespace {

// The stored text of `number` in the installation's language, English when Chinese is missing.
std::u16string SystemText(int number) {
  std::u16string english = modules::MV_LoadResStr(ServerPath, number);
  if (LangChanger().SystemLanguage() == kLangEnglish) return english;
  std::u16string chinese = modules::MV_LoadCStr(ServerPath, number, kLangChinese);
  return chinese.empty() ? english : chinese;
}

std::u16string CurrentText(int number) {
  return modules::MV_LoadCStr(ServerPath, number, LangChanger().Language());
}

}  // namespace

std::string LoadCStr(int number) {
  return ShownNarrow(LangChanger().Language(), CurrentText(number));
}

std::u16string LoadCStrW(int number) {
  return ShownWide(LangChanger().Language(), CurrentText(number));
}

std::string LoadCStr(int number, modules::TFormatArgs args) {
  return ShownNarrow(LangChanger().Language(), modules::MV_WideFormat(CurrentText(number), args));
}

std::u16string LoadCStrW(int number, modules::TFormatArgs args) {
  return ShownWide(LangChanger().Language(), modules::MV_WideFormat(CurrentText(number), args));
}

std::string LoadCStr(int number, modules::TFormatArgs args, bool system) {
  return system ? LoadSStr(number, args) : LoadCStr(number, args);
}

std::string LoadResStr(int number) {
  return codepage::FromWide(modules::MV_LoadResStr(ServerPath, number), codepage::UserCodePage());
}

std::string LoadSStr(int number) {
  return ShownNarrow(LangChanger().SystemLanguage(), SystemText(number));
}

std::string LoadSStr(int number, modules::TFormatArgs args) {
  return ShownNarrow(LangChanger().SystemLanguage(),
                     modules::MV_WideFormat(SystemText(number), args));
}

}  // namespace mv
