#include "platform/codepage/simplified.h"

#include "platform/codepage/codepage.h"

namespace mv::codepage {

std::string Big5ToGbk(std::string_view big5) {
  return FromWide(ToSimplified(ToWide(big5, kBig5)), kGbk);
}

}  // namespace mv::codepage
