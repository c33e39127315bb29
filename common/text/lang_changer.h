// The language changer: one per process (LangChanger()). It knows the language in which texts
// are shown now and the language of the whole installation, chooses between the two texts of a
// bilingual pair, and carries out the system-wide switch of every caption to Chinese or English.
// Languages: 0 Chinese (Traditional), 1 English, 3 simplified Chinese (Chinese texts shown in GB).
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mv {

class TLangChanger {
 public:
  // The current language; 0 until a switch or SetLanguage changes it.
  uint8_t Language() const { return language_; }
  void SetLanguage(uint8_t language) { language_ = language; }

  // The language of the installation (the last system-wide switch); 0 until a switch.
  uint8_t SystemLanguage() const { return systemLanguage_; }

  // Whether the user interface works with ANSI (code-page) texts rather than Unicode ones.
  bool AnsiInterface() const { return ansiInterface_; }
  void SetAnsiInterface(bool ansi) { ansiInterface_ = ansi; }

  // Of a bilingual pair given as UTF-8 literals, the text of the current language: `english`
  // when the language is 1, else `chinese`. CStr gives it as narrow text in the user's code page
  // (characters the code page cannot hold become "?"), CStrW as UTF-16.
  std::string CStr(std::string_view english, std::string_view chinese) const;
  std::u16string CStrW(std::string_view english, std::string_view chinese) const;
  // The same choice by the language of the installation.
  std::string SStr(std::string_view english, std::string_view chinese) const;
  std::u16string SStrW(std::string_view english, std::string_view chinese) const;

  // The system-wide switch: every caption of the user interface to Chinese ("ChineseTogether")
  // or English ("EnglishTogether"). Sets the current and the installation language and tells
  // every registered listener the new language.
  void ChineseTogether();
  void EnglishTogether();

  // Registers a listener of the system-wide switch (a caption handler); returns its number.
  using SwitchListener = std::function<void(uint8_t language)>;
  int AddSwitchListener(SwitchListener listener);
  void RemoveSwitchListener(int id);

 private:
  void SwitchAll(uint8_t language);

  uint8_t language_ = 0;
  uint8_t systemLanguage_ = 0;
  bool ansiInterface_ = false;
  int nextListenerId_ = 1;
  std::vector<std::pair<int, SwitchListener>> listeners_;
};

// The language changer of the process.
TLangChanger& LangChanger();

}  // namespace mv
