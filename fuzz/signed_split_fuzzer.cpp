// libFuzzer target of the signed-message split and of SEGX. The input is a message file's bytes:
// the joined lines hold no line ends and are never longer than the input; a split that succeeds
// gives a document ending with the opening tag, and document, signature and closing tag are the
// start of the joined text; every code agrees with the tags present. SEGX gives a piece of its
// input without the separator, at most 255 characters long beyond the first field, in both text
// forms.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "common/services/msg_fields.h"
#include "common/services/signed_files.h"

namespace {

constexpr std::string_view kOpening = "<electronicSignature>";
constexpr std::string_view kClosing = "</electronicSignature>";

void Check(bool condition) {
  if (!condition) std::abort();
}

void CheckSplit(std::string_view input) {
  const std::string joined = mv::JoinTrimmedLines(input);
  Check(joined.size() <= input.size());
  Check(joined.find_first_of("\r\n") == std::string::npos);
  const mv::TSignedParts parts = mv::SplitSignedText(joined);
  const size_t opening = joined.find(kOpening), closing = joined.find(kClosing);
  if (opening == std::string::npos || closing == std::string::npos) {
    Check(parts.Code == (opening != std::string::npos   ? mv::kSplitNoClosing
                         : closing != std::string::npos ? mv::kSplitNoOpening
                                                        : mv::kSplitNoTags));
  } else if (parts.Code == mv::kSplitTagsReversed) {
    Check(closing < opening);
  } else {
    Check(parts.Code == mv::kSplitDone && parts.Document.ends_with(kOpening));
    Check(joined.starts_with(parts.Document + parts.Signature + std::string(kClosing)));
  }
}

template <class Char>
void CheckSegx(std::basic_string_view<Char> input) {
  for (int n = 0; n <= 4; ++n) {
    std::basic_string<Char> field;
    mv::SEGX(',', input, n, field);
    Check(n >= 1 || field.empty());
    Check(field.find(Char(',')) == std::basic_string<Char>::npos);
    Check(input.find(field) != std::basic_string_view<Char>::npos);
    Check(n <= 1 || field.size() <= mv::kSegxWindow);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  CheckSplit(input);
  CheckSegx(input);
  std::u16string wide(size / 2, u'\0');
  std::memcpy(wide.data(), data, wide.size() * 2);
  CheckSegx(std::u16string_view(wide));
  return 0;
}
