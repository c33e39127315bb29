#include "platform/codepage/narrow_chars.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <numeric>

#include "platform/codepage/codepage.h"
#include "platform/codepage/converter_cache_p.h"

namespace mv::codepage {
namespace {

// Bytes read per piece: small enough that the buffers come from the heap, not from fresh pages.
constexpr size_t kPieceBytes = 4096;

}  // namespace

struct TNarrowReader::TState {
  UConverter* conv;  // the thread's cached converter: no state is kept in it between pieces
  std::string_view text;
  size_t done = 0;
  std::vector<int32_t> pieceOffsets;
};

TNarrowReader::TNarrowReader(std::string_view text, int codePage)
    : state_(new TState{CachedConverter(codePage, ConverterUse::kSubstitute), text, 0, {}}) {}

TNarrowReader::~TNarrowReader() = default;

bool TNarrowReader::Next() {
  TState& s = *state_;
  count_ = 0;
  if (s.done >= s.text.size()) return false;
  size_t end = std::min(s.done + kPieceBytes, s.text.size());
  bool last = end == s.text.size();
  size_t capacity = 2 * (end - s.done) + 2;  // every byte gives at most two units
  units_.resize(capacity);
  offsets_.resize(capacity);
  s.pieceOffsets.resize(capacity);
  UChar* target = units_.data();
  const char* source = s.text.data() + s.done;
  UErrorCode status = U_ZERO_ERROR;
  ucnv_resetToUnicode(s.conv);
  ucnv_toUnicode(s.conv, &target, units_.data() + capacity, &source, s.text.data() + end,
                 s.pieceOffsets.data(), last, &status);
  if (U_FAILURE(status))
    throw ECodePageError(std::string("conversion failed: ") + u_errorName(status));
  count_ = static_cast<size_t>(target - units_.data());
  for (size_t i = 0; i < count_; ++i) {
    int32_t offset = s.pieceOffsets[i];
    offsets_[i] = s.done + static_cast<size_t>(std::max(0, offset));
  }
  if (!last) {
    // Bytes the converter still holds (a character cut at the piece's end, or bytes it will read
    // again after an illegal sequence) are read afresh as the start of the next piece, so that
    // every unit knows its offset.
    int32_t pending = ucnv_toUCountPending(s.conv, &status);
    if (U_SUCCESS(status) && pending > 0 && static_cast<size_t>(pending) < end - s.done) {
      end -= static_cast<size_t>(pending);
    }
  }
  s.done = end;
  return true;
}

}  // namespace mv::codepage
