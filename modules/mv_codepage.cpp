#include "modules/mv_codepage.h"

#include "platform/codepage/codepage.h"

namespace mv::modules {

std::string MV_GetCodepage(bool system) {
  return std::to_string(system ? codepage::SystemCodePage() : codepage::UserCodePage());
}

}  // namespace mv::modules
