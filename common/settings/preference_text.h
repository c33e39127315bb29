// The text in which a user's settings are kept: one line per entry, key "=" value, in UTF-16.
// The preference store and the grid layouts both read and write the user's settings column
// through this class, so the two always agree on the format:
//
//   PeriodPreset=-1D#1W#1M#3M#6M#1Y<CR><LF>
//   PeriodInbox=3M<CR><LF>
//
// - Reading, a line ends at CR, at LF or at CR LF (one break each); writing, every line, the last
//   included, is followed by CR LF.
// - The key of a line is everything before its first "="; the value everything after it, "=" and
//   commas included. A line without "=" is kept as it stands and has no key.
// - Keys are compared without regard to letter case (simple Unicode case folding); when two lines
//   carry the same key, the first one counts.
// - An empty value and an absent entry are the same thing: setting a key to the empty text
//   removes its lines, and reading an absent key gives the empty text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mv {

class TPreferenceText {
 public:
  TPreferenceText() = default;
  // The lines of `text`, as SetText reads them.
  explicit TPreferenceText(std::u16string_view text) { SetText(text); }

  // Replaces the lines by those of `text`. The empty text has no lines; a break at the very end
  // ends the last line and starts no new one, so "a=1\r\n" and "a=1" are both the one line "a=1".
  void SetText(std::u16string_view text);
  // Every line followed by CR LF; the empty text when there are no lines.
  std::u16string Text() const;

  // The value of the first line whose key is `key`; the empty text when no line has that key.
  std::u16string Value(std::u16string_view key) const;

  // Sets entry `key` to `value`. A non-empty value replaces the first line of that key in place,
  // written with `key` as given here (its new spelling), or, when there is none, is appended as
  // the last line. The empty value removes every line of that key, so that no later duplicate
  // takes the removed entry's place. Throws std::invalid_argument, changing nothing, when `key`
  // holds "=", CR or LF or `value` holds CR or LF: such a text would read back as other entries.
  void SetValue(std::u16string_view key, std::u16string_view value);

  // The lines, without their line ends.
  const std::vector<std::u16string>& Lines() const { return lines_; }

 private:
  std::vector<std::u16string> lines_;
};

// True when `line` has the key `key` (see above).
bool PreferenceLineHasKey(std::u16string_view line, std::u16string_view key);

}  // namespace mv
