// Numbered texts of the installation: the text catalogue in ServerPath (modules/mv_texts.h),
// where the English text of number N is stored under N and the Chinese one under N + 6000.
// Narrow results are in the form the language shows them (ShownNarrow of lang_changer.h: the
// user's code page, or GB in language 3); wide results are UTF-16. A missing text gives an empty
// text. Argument lists fill printf-like placeholders ("%s", "%d" ...) as MV_WideFormat does, and
// a format error is raised as MV_WideFormat raises it.
#pragma once

#include <concepts>
#include <string>

#include "modules/mv_format.h"

namespace mv {

// The text of `number` in the installation's language (the changer's SystemLanguage); when the
// Chinese text is missing, the English one (a missing English text stays empty).
std::string LoadSStr(int number);
// The same, formatted with `args`.
std::string LoadSStr(int number, modules::TFormatArgs args);

// The text of `number` in the language changer's current language (no fallback to English).
std::string LoadCStr(int number);
std::u16string LoadCStrW(int number);
// The same, formatted with `args`.
std::string LoadCStr(int number, modules::TFormatArgs args);
std::u16string LoadCStrW(int number, modules::TFormatArgs args);
// `system` true: LoadSStr of the number; false: LoadCStr of the number. The flag must be a bool,
// so that an array of arguments never turns into it.
std::string LoadCStr(int number, modules::TFormatArgs args, bool system);
inline std::string LoadCStr(int number, std::same_as<bool> auto system) {
  return system ? LoadSStr(number) : LoadCStr(number);
}

// The text stored under exactly `number`, in the user's code page, whatever the language.
std::string LoadResStr(int number);

}  // namespace mv
