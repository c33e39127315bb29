#include "common/text/caption_handler.h"

#include <algorithm>

#include "common/text/lang_changer.h"

namespace mv {

TCaptionHandler::TCaptionHandler(dialogs::TCaptionTarget& target)
    : target_(target), language_(LangChanger().Language()) {
  listenerId_ =
      LangChanger().AddSwitchListener([this](uint8_t language) { ApplyLanguage(language); });
}

TCaptionHandler::~TCaptionHandler() {
  LangChanger().RemoveSwitchListener(listenerId_);
}

void TCaptionHandler::AddCaption(const std::string& controlName, std::u16string english,
                                 std::u16string chinese) {
  auto it = std::find_if(captions_.begin(), captions_.end(),
                         [&](const TCaptionPair& pair) { return pair.controlName == controlName; });
  TCaptionPair pair{controlName, std::move(english), std::move(chinese)};
  if (it == captions_.end()) {
    captions_.push_back(std::move(pair));
    it = captions_.end() - 1;
  } else {
    *it = std::move(pair);
  }
  Show(*it);
}

int TCaptionHandler::ApplyLanguage(uint8_t language) {
  language_ = language;
  return static_cast<int>(std::count_if(captions_.begin(), captions_.end(),
                                        [this](const TCaptionPair& pair) { return Show(pair); }));
}

void TCaptionHandler::ChineseTogether() {
  LangChanger().ChineseTogether();
}

void TCaptionHandler::EnglishTogether() {
  LangChanger().EnglishTogether();
}

bool TCaptionHandler::Show(const TCaptionPair& pair) const {
  const std::u16string& text = language_ == kLangEnglish ? pair.english : pair.chinese;
  return target_.SetCaption(pair.controlName, ShownWide(language_, text));
}

}  // namespace mv
