// Numbered texts of an installation, read from its text catalogue (mv_text_catalogue.h) in the
// server folder. Each server folder's catalogue is read once, on first use, and kept for the
// life of the process; a folder without a catalogue has no texts.
#pragma once

#include <cstdint>
#include <string>

namespace mv::modules {

// The catalogue's file name inside the server folder, found without regard to case.
inline constexpr const char* kTextCatalogueName = "SEDIFMSG.TXT";

// The UTF-16 text stored under exactly `number` in the catalogue of `serverPath` (a folder
// ending with a separator); empty when the catalogue or the number is missing.
std::u16string MV_LoadResStr(const std::string& serverPath, int number);

// The UTF-16 text of `number` in `language`: number itself for English (1), number + 6000 for
// Chinese (any other value). Empty when missing; a missing Chinese text is not replaced.
std::u16string MV_LoadCStr(const std::string& serverPath, int number, uint8_t language);

}  // namespace mv::modules
