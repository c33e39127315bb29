#include "platform/codepage/narrow_chars.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <memory>
#include <numeric>

#include "platform/codepage/codepage.h"

namespace mv::codepage {
namespace {

struct ConverterCloser {
  void operator()(UConverter* c) const { ucnv_close(c); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterCloser>;

ConverterPtr OpenConverter(int codePage) {
  std::string name = ConverterName(codePage);
  if (name.empty()) throw ECodePageError("unknown code page " + std::to_string(codePage));
  UErrorCode status = U_ZERO_ERROR;
  ConverterPtr conv(ucnv_open(name.c_str(), &status));
  if (U_FAILURE(status)) {
    throw ECodePageError("no converter for code page " + std::to_string(codePage) + ": " +
                         u_errorName(status));
  }
  return conv;
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

TMappedWide ToWideMapped(std::string_view text, int codePage) {
  TMappedWide out;
  if (text.empty()) return out;
  ConverterPtr conv = OpenConverter(codePage);
  // Every byte gives at most two units (a surrogate pair or a substitution).
  size_t capacity = text.size() * 2 + 2;
  out.wide.resize(capacity);
  out.offsets.resize(capacity);
  UChar* target = out.wide.data();
  const char* source = text.data();
  UErrorCode status = U_ZERO_ERROR;
  ucnv_toUnicode(conv.get(), &target, target + capacity, &source, source + text.size(),
                 out.offsets.data(), true, &status);
  if (U_FAILURE(status))
    throw ECodePageError(std::string("conversion failed: ") + u_errorName(status));
  size_t n = static_cast<size_t>(target - out.wide.data());
  out.wide.resize(n);
  out.offsets.resize(n);
  return out;
}

std::vector<size_t> CharStarts(std::string_view text, int codePage) {
  std::vector<size_t> starts;
  if (IsAscii(text)) {
    starts.resize(text.size());
    std::iota(starts.begin(), starts.end(), size_t{0});
    return starts;
  }
  TMappedWide mapped = ToWideMapped(text, codePage);
  starts.reserve(mapped.offsets.size());
  for (int32_t offset : mapped.offsets) {
    if (offset < 0) continue;
    size_t at = static_cast<size_t>(offset);
    if (starts.empty() || at > starts.back()) starts.push_back(at);
  }
  return starts;
}

}  // namespace mv::codepage
