#include "modules/mv_edition.h"

#include "modules/mv_strings.h"
#include "platform/ini/ini_file.h"

namespace mv::modules {

bool MV_IsHalvo(const std::string& iniPath) {
  return MV_IsHalvo(ini::TIniFile(iniPath));
}

bool MV_IsHalvo(const ini::TIniFile& systemIni) {
  return MV_SameText(systemIni.ReadString("System", "Edition", ""), "Halvo");
}

}  // namespace mv::modules
