// Windows: characters of narrow text found by the system's conversion. Text that converts as a
// whole is mapped with the code page's lead bytes; anything else is read one character at a time.
#include <windows.h>

#include <algorithm>

#include "platform/codepage/codepage.h"
#include "platform/codepage/narrow_chars.h"
#include "platform/codepage/windows_codepage_p.h"

namespace mv::codepage {
namespace {

// Bytes read per piece, so that long texts need no buffers of their size.
constexpr size_t kPieceBytes = 4096;

}  // namespace

struct TNarrowReader::TState {
  int codePage;
  std::string_view text;
  size_t done = 0;
};

TNarrowReader::TNarrowReader(std::string_view text, int codePage)
    : state_(new TState{codePage, text, 0}) {
  detail::CheckCodePage(codePage);
}

TNarrowReader::~TNarrowReader() = default;

bool TNarrowReader::Next() {
  TState& s = *state_;
  units_.clear();
  offsets_.clear();
  count_ = 0;
  if (s.done >= s.text.size()) return false;
  // A piece ends at a character's end: the character that crosses kPieceBytes is read whole.
  const size_t end = std::min(s.done + kPieceBytes, s.text.size());
  while (s.done < end) {
    const detail::TDecodedChar one = detail::DecodeOneChar(s.text.substr(s.done), s.codePage);
    for (const char16_t unit : one.units) {
      units_.push_back(unit);
      offsets_.push_back(s.done);
    }
    s.done += one.bytes;
  }
  count_ = units_.size();
  return true;
}

}  // namespace mv::codepage
