// libFuzzer target of the signed-message split and of SEGX. The input is a message file's bytes:
// the joined lines hold no line ends and are never longer than the input; a split that succeeds
// gives a document ending with the opening tag, and document, signature and closing tag are the
// start of the joined text; every code agrees with the tags present. SEGX gives a piece of its
// input without the separator, at most 255 characters long beyond the first field, in both text
// forms.
#include <cstdint>
#include <cstdlib>
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
  const bool opening = joined.find(kOpening) != std::string::npos;
  const bool closing = joined.find(kClosing) != std::string::npos;
  switch (parts.Code) {
    case mv::kSplitDone:
      Check(parts.Document.ends_with(kOpening));
      Check(joined.starts_with(parts.Document + parts.Signature + std::string(kClosing)));
      break;
    case mv::kSplitNoTags:
      Check(!opening && !closing);
      break;
    case mv::kSplitNoOpening:
      Check(!opening && closing);
      break;
    case mv::kSplitNoClosing:
      Check(opening && !closing);
      break;
    case mv::kSplitTagsReversed:
      Check(joined.find(kClosing) < joined.find(kOpening));
      break;
    default:
      Check(false);
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
  for (size_t i = 0; i < wide.size(); ++i) wide[i] = char16_t(data[2 * i] | (data[2 * i + 1] << 8));
  CheckSegx(std::u16string_view(wide));
  return 0;
}
