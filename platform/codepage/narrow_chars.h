// Where the characters of narrow text lie: which bytes of a Big5 (or other multi-byte code page)
// text belong together. The code page's converter decides (ICU on POSIX, the system's conversion
// on Windows); there are no tables of our own.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace mv::codepage {

// Reads narrow text in a code page piece by piece, so that long texts need no buffers of their
// size: each piece gives wide units, each with the byte offset (in the whole text) of the
// character it comes from; both units of a surrogate pair carry the same offset. Together the
// pieces give the wide text ToWide gives; bytes that start no valid character (a lone lead byte)
// are substituted as ToWide substitutes them and are characters of their own. The text must outlive
// the reader, which reads with its thread's cached converter and belongs to that thread.
class TNarrowReader {
 public:
  // Throws ECodePageError for an unknown code page.
  TNarrowReader(std::string_view text, int codePage);
  ~TNarrowReader();
  TNarrowReader(const TNarrowReader&) = delete;
  TNarrowReader& operator=(const TNarrowReader&) = delete;

  // The next piece; false (and nothing read) when the text is done. The spans stay valid until
  // the next call.
  bool Next();
  std::span<const char16_t> Units() const { return {units_.data(), count_}; }
  std::span<const size_t> Offsets() const { return {offsets_.data(), count_}; }

 private:
  struct TState;
  std::unique_ptr<TState> state_;
  std::vector<char16_t> units_;
  std::vector<size_t> offsets_;
  size_t count_ = 0;
};

// The wide text of narrow `text` in `codePage`, with for every unit the byte offset of the
// character it comes from (as TNarrowReader reads it). Throws ECodePageError for an unknown code
// page.
struct TMappedWide {
  std::u16string wide;
  std::vector<size_t> offsets;
};
TMappedWide ToWideMapped(std::string_view text, int codePage);

// The byte offsets, ascending and starting with 0, at which the characters of narrow `text` in
// `codePage` start; empty for an empty text. Text of bytes below 0x80 is answered without ICU.
// Throws ECodePageError for an unknown code page.
std::vector<size_t> CharStarts(std::string_view text, int codePage);

}  // namespace mv::codepage
