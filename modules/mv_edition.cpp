#include "modules/mv_edition.h"

#include "modules/mv_strings.h"
#include "platform/ini/ini_file.h"

namespace mv::modules {

bool MV_IsHalvo(const std::string& iniPath) {
  ini::TIniFile ini(iniPath);
  return MV_SameText(ini.ReadString("System", "Edition", ""), "Halvo");
}

}  // namespace mv::modules
