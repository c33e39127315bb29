#include "platform/qt/button_captions.h"

namespace mv::qt {

std::u16string ButtonCaption(dialogs::TMsgDlgBtn button, bool english) {
  static const char16_t* const kChinese[] = {u"是",     u"否",     u"確定", u"取消",
                                             u"中止",   u"重試",   u"略過", u"全部",
                                             u"全部否", u"全部是", u"說明"};
  if (!english) return kChinese[button];
  const char* name = dialogs::ButtonName(button);
  return std::u16string(name, name + std::char_traits<char>::length(name));
}

std::u16string KindTitle(dialogs::TMsgDlgType kind, bool english) {
  static const char16_t* const kChinese[] = {u"警告", u"錯誤", u"資訊", u"確認", u""};
  if (!english) return kChinese[kind];
  const char* name = dialogs::KindName(kind);
  return std::u16string(name, name + std::char_traits<char>::length(name));
}

const char* ButtonObjectName(dialogs::TMsgDlgBtn button) {
  static const char* const kNames[] = {"mbYes",     "mbNo",       "mbOK",     "mbCancel",
                                       "mbAbort",   "mbRetry",    "mbIgnore", "mbAll",
                                       "mbNoToAll", "mbYesToAll", "mbHelp"};
  return kNames[button];
}

}  // namespace mv::qt
