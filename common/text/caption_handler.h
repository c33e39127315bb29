// The caption handler of one form: the English and Chinese captions of its named controls, shown
// in one language at a time through the form's caption target. Every handler is registered with
// the language changer, so the system-wide switch reaches the captions of every open form.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/dialogs/caption_target.h"

namespace mv {

class TCaptionHandler {
 public:
  // A handler of the form behind `target` (not owned; it must outlive the handler), in the
  // language changer's current language, registered with the changer until it is destroyed.
  explicit TCaptionHandler(dialogs::TCaptionTarget& target);
  ~TCaptionHandler();
  TCaptionHandler(const TCaptionHandler&) = delete;
  TCaptionHandler& operator=(const TCaptionHandler&) = delete;

  // Adds (or replaces) the caption pair of the control `controlName` and shows the caption of the
  // handler's language on it at once (Simplified characters in language 3). A name the form does
  // not know is kept all the same, and skipped whenever captions are shown.
  void AddCaption(const std::string& controlName, std::u16string english, std::u16string chinese);

  // The language the captions are shown in now (0 Chinese, 1 English, 3 simplified Chinese).
  uint8_t Language() const { return language_; }

  // Shows every caption of this form in `language` and makes it the handler's language; any
  // other form keeps its captions. Returns how many controls were found and set.
  int ApplyLanguage(uint8_t language);

  // The system-wide switch started from this form: the language changer's ChineseTogether /
  // EnglishTogether, which shows every registered form, this one among them, in that language.
  void ChineseTogether();
  void EnglishTogether();

 private:
  struct TCaptionPair {
    std::string controlName;
    std::u16string english;
    std::u16string chinese;
  };
  bool Show(const TCaptionPair& pair) const;

  dialogs::TCaptionTarget& target_;
  std::vector<TCaptionPair> captions_;
  uint8_t language_;
  int listenerId_;
};

}  // namespace mv
