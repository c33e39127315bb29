// The language changer: one per process (LangChanger()). It knows the language in which texts
// are shown now, chooses between the two texts of a bilingual pair, and carries out the
// system-wide switch of every caption to Chinese or English.
// Languages: 0 Chinese (Traditional), 1 English, 3 simplified Chinese: the Chinese texts shown in
// Simplified characters, as GB (code page 936) when narrow. Any other value chooses Chinese.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mv {

inline constexpr uint8_t kLangChinese = 0;
inline constexpr uint8_t kLangEnglish = 1;
inline constexpr uint8_t kLangSimplified = 3;

// Wide text of `language` as it is shown: Simplified characters in language 3, else unchanged.
std::u16string ShownWide(uint8_t language, std::u16string_view text);
// Narrow text of a wide text of `language` as it is shown: in language 3 Simplified characters in
// code page 936, else the user's code page; characters the code page cannot hold become "?".
std::string ShownNarrow(uint8_t language, std::u16string_view text);

class TLangChanger {
 public:
  // The current language; 0 until a switch or SetLanguage changes it. SetLanguage changes it
  // without touching any caption.
  uint8_t Language() const { return language_; }
  void SetLanguage(uint8_t language) { language_ = language; }

  // The language of the installation: SysLanguageMode of the shared state, which the settings
  // loader sets; a system-wide switch does not change it.
  uint8_t SystemLanguage() const;

  // Whether the user interface works with ANSI (code-page) texts rather than Unicode ones
  // ([Language] AnsiGUI of the system configuration).
  bool AnsiInterface() const { return ansiInterface_; }
  void SetAnsiInterface(bool ansi) { ansiInterface_ = ansi; }

  // Of a bilingual pair given as UTF-8 literals or as wide texts, the text of the current
  // language: `english` when the language is 1, else `chinese`. CStr gives it as narrow text
  // (ShownNarrow), CStrW as UTF-16 (ShownWide).
  std::string CStr(std::string_view english, std::string_view chinese) const;
  std::u16string CStrW(std::string_view english, std::string_view chinese) const;
  std::string CStr(std::u16string_view english, std::u16string_view chinese) const;
  std::u16string CStrW(std::u16string_view english, std::u16string_view chinese) const;
  // The same choice by the language of the installation.
  std::string SStr(std::string_view english, std::string_view chinese) const;
  std::u16string SStrW(std::string_view english, std::string_view chinese) const;
  std::string SStr(std::u16string_view english, std::u16string_view chinese) const;
  std::u16string SStrW(std::u16string_view english, std::u16string_view chinese) const;

  // Of a pair of narrow texts in the system code page (as the configuration files and the
  // shared settings hold them, e.g. the English and Chinese captions of user-defined fields), the
  // text of the installation's language as UTF-16 (Simplified in language 3). Bytes the code
  // page does not map become U+FFFD.
  std::u16string SysLangUnicodeStr(std::string_view english, std::string_view chinese) const;

  // The system-wide switch: every caption of the user interface to Chinese ("ChineseTogether")
  // or English ("EnglishTogether"). Sets the current language and tells every registered
  // listener the new language, in the order they registered. A listener may register or remove
  // listeners while it is told; one removed before its turn is not told.
  void ChineseTogether();
  void EnglishTogether();

  // Registers a listener of the system-wide switch (a caption handler); returns its number.
  using SwitchListener = std::function<void(uint8_t language)>;
  int AddSwitchListener(SwitchListener listener);
  void RemoveSwitchListener(int id);

 private:
  void SwitchAll(uint8_t language);

  uint8_t language_ = 0;
  bool ansiInterface_ = false;
  int nextListenerId_ = 1;
  std::vector<std::pair<int, SwitchListener>> listeners_;
};

// The language changer of the process.
TLangChanger& LangChanger();

}  // namespace mv
