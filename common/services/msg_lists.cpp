#include "common/services/msg_lists.h"

#include "common/frame/shared_state.h"
#include "common/services/msg_fields.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/simplified.h"
#include "platform/ini/ini_file.h"

namespace mv {

std::unique_ptr<TStringList> GetMsgList(const std::string& entry) {
  auto list = std::make_unique<TStringList>();
  const size_t equals = entry.find('=');
  const std::string value = equals == entry.npos ? entry : entry.substr(equals + 1);
  const ini::TIniFile ini(ServerPath + Global_Merovan_Ini);

  std::string section;
  switch (LangChanger().Language()) {
    case kLangChinese:
      SEGX(',', value, 2, section);
      *list = ini.ReadSectionValues(section);
      break;
    case kLangEnglish:
      SEGX(',', value, 1, section);
      *list = ini.ReadSectionValues(section);
      break;
    case kLangSimplified:
      SEGX(',', value, 2, section);
      *list = SplitLines(codepage::Big5ToGbk(StringListText(ini.ReadSectionValues(section))));
      break;
    default:
      break;
  }
  return list;
}

}  // namespace mv
