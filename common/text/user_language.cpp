#include "common/text/user_language.h"

#include "common/frame/shared_state.h"
#include "common/text/caption_handler.h"
#include "common/text/lang_changer.h"
#include "platform/shell/program_group.h"

namespace mv {

void UpdateUserLanguageMode(TCaptionHandler& handler) {
  LanguageMode = UserRecord.Language;
  if (LanguageMode != handler.Language()) {
    if (LanguageMode == kLangChinese) handler.ChineseTogether();
    if (LanguageMode == kLangEnglish) handler.EnglishTogether();
  }
  const bool english = LangChanger().Language() == kLangEnglish;
  shell::SetProgramGroupLanguage(
      BasePath, english ? shell::TShortcutLanguage::English : shell::TShortcutLanguage::Chinese);
}

}  // namespace mv
