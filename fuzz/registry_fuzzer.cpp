// Feeds arbitrary bytes to the registry export parser and reads a few values back. Big5 as the
// narrow code page makes REGEDIT4 input go through a multi-byte converter.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/registry/reg_file_parser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  mv::registry::TRegFile file = mv::registry::TRegFile::Parse(bytes, 950);
  for (std::u16string_view key : {u"\\SOFTWARE\\Merovan\\Orvex4", u"K", u""}) {
    for (std::u16string_view value : {u"ServerPath", u"A", u""}) file.ReadString(key, value);
  }
  return 0;
}
