// libFuzzer target of the format routines. The input is a format text, read once as narrow text
// (Big5) and once as wide text (UTF-16 units, two bytes each), and filled from a fixed argument
// list of every kind. Whatever the text, formatting either succeeds or raises EFormatError; a
// text without "%" comes back unchanged.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "modules/mv_format.h"

namespace {

using mv::modules::EFormatError;
using mv::modules::TFormatArg;

const std::vector<TFormatArg>& Arguments() {
  static const std::vector<TFormatArg> args{int64_t{42},
                                            int64_t{INT64_MIN},
                                            -1234.5678,
                                            1e300,
                                            std::string("ab\xA4\xA4\xB3\x5C"),
                                            std::u16string(u"中\U00020000x"),
                                            std::string(),
                                            std::u16string()};
  return args;
}

template <class Char>
void Check(std::basic_string_view<Char> format,
           std::basic_string<Char> (*fill)(std::basic_string_view<Char>,
                                           mv::modules::TFormatArgs)) {
  try {
    std::basic_string<Char> out = fill(format, Arguments());
    if (format.find(Char('%')) == format.npos && out != format) std::abort();
  } catch (const EFormatError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("MV_CODEPAGE", "950", 1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string_view narrow(reinterpret_cast<const char*>(data), size);
  Check<char>(narrow, mv::modules::MV_WideFmtStr);
  std::u16string wide(size / 2, u'\0');
  std::memcpy(wide.data(), data, wide.size() * 2);
  Check<char16_t>(wide, mv::modules::MV_WideFormat);
  return 0;
}
