// libFuzzer target of the text catalogue reader (the numbered texts of SEDIFMSG.TXT). Whatever the
// bytes, reading must not crash, every text must be well-formed UTF-16, the warnings must name
// lines of the file in order, and the reader must treat lines alone: a file cut in two after a line
// reads as its first part with the texts of the second part's new numbers added (the first entry of
// a number wins, a later one is a warning), and a file without CR reads the same with CR LF line
// ends.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <set>
#include <string>
#include <string_view>

#include "modules/mv_text_catalogue.h"

namespace {

using mv::modules::TTextCatalogue;

constexpr long long kMaxNumber = std::numeric_limits<int>::max();
constexpr int kMinNumber = std::numeric_limits<int>::min();

void Expect(bool condition) {
  if (!condition) std::abort();
}

// The numbers the file could hold: for each line, the digits after its leading blanks, and the
// edges of the number range.
std::set<int> Candidates(std::string_view bytes) {
  std::set<int> numbers{0, 1, -1, std::numeric_limits<int>::max(), kMinNumber};
  for (size_t start = 0; start <= bytes.size();) {
    size_t end = bytes.find('\n', start);
    if (end == std::string_view::npos) end = bytes.size();
    size_t i = bytes.find_first_not_of(" \t", start);
    long long number = 0;
    for (; i < end && bytes[i] >= '0' && bytes[i] <= '9' && number <= kMaxNumber; ++i)
      number = number * 10 + (bytes[i] - '0');
    if (number <= kMaxNumber) numbers.insert(static_cast<int>(number));
    start = end + 1;
  }
  return numbers;
}

bool WellFormed(const std::u16string& text) {
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] >= 0xDC00 && text[i] <= 0xDFFF) return false;
    if (text[i] >= 0xD800 && text[i] <= 0xDBFF) {
      if (i + 1 == text.size() || text[i + 1] < 0xDC00 || text[i + 1] > 0xDFFF) return false;
      ++i;
    }
  }
  return true;
}

bool SameTexts(const TTextCatalogue& a, const TTextCatalogue& b, const std::set<int>& numbers) {
  if (a.size() != b.size()) return false;
  for (int number : numbers) {
    if (a.Find(number) != b.Find(number)) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const TTextCatalogue catalogue = TTextCatalogue::Parse(bytes);
  const std::set<int> numbers = Candidates(bytes);

  const size_t lines = static_cast<size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
  Expect(catalogue.size() + catalogue.warnings().size() <= lines);
  int previous = 0;
  for (const auto& warning : catalogue.warnings()) {
    Expect(warning.line > previous && static_cast<size_t>(warning.line) <= lines);
    previous = warning.line;
  }
  Expect(catalogue.Find(-1).empty() && catalogue.Find(kMinNumber).empty());
  for (int number : numbers) Expect(WellFormed(catalogue.Find(number)));

  // Split after a line end near the middle: the whole keeps every text of the first part, takes
  // the rest from the second part, and warns once more for each number of both.
  const size_t split = std::min(bytes.size(), bytes.find('\n', bytes.size() / 2) + 1);
  const std::string second = bytes.substr(split);
  if (split > 0 && !second.starts_with("\xEF\xBB\xBF")) {
    const TTextCatalogue a = TTextCatalogue::Parse(bytes.substr(0, split));
    const TTextCatalogue b = TTextCatalogue::Parse(second);
    for (int number : numbers) {
      const std::u16string whole = catalogue.Find(number);
      Expect(whole == a.Find(number) || (a.Find(number).empty() && whole == b.Find(number)));
    }
    Expect(catalogue.size() <= a.size() + b.size());
    Expect(catalogue.warnings().size() ==
           a.warnings().size() + b.warnings().size() + a.size() + b.size() - catalogue.size());
  }
  if (bytes.find('\r') == std::string::npos) {
    std::string crlf;
    for (char c : bytes) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    const TTextCatalogue withCr = TTextCatalogue::Parse(crlf);
    Expect(SameTexts(catalogue, withCr, numbers));
    Expect(withCr.warnings().size() == catalogue.warnings().size());
    for (size_t i = 0; i < withCr.warnings().size(); ++i)
      Expect(withCr.warnings()[i].line == catalogue.warnings()[i].line &&
             withCr.warnings()[i].message == catalogue.warnings()[i].message);
  }
  return 0;
}
