#include "tests/support/installation.h"

#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/text/lang_changer.h"

namespace mv::test {

TestInstallation::TestInstallation() : machineDir_("MV_MACHINE_DIR", dir_.MakeDir("machine")) {
  dir_.MakeDir("client/server");
  WriteRegistry(ServerFolder());
  ResetSharedState();
}

TestInstallation::~TestInstallation() {
  ResetSharedState();
}

void TestInstallation::WriteSystemIni(std::string_view text) const {
  dir_.Write("client/server/SEDIFSYS.INI", text);
}

void TestInstallation::WriteMachineIni(std::string_view text) const {
  dir_.Write("machine/WIN.INI", text);
}

void TestInstallation::WriteRegistry(std::string_view serverPath) const {
  std::string value;
  for (char c : serverPath) value += c == '\\' ? std::string("\\\\") : std::string(1, c);
  std::string text = "Windows Registry Editor Version 5.00\r\n\r\n";
  for (const char* key : {"Orvex4", "QNVS4"}) {
    text += std::string("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\") + key + "]\r\n";
    if (!serverPath.empty()) text += "\"ServerPath\"=\"" + value + "\"\r\n";
    text += "\r\n";
  }
  dir_.Write("machine/registry.reg", text);
}

void ResetSharedState() {
  ServerPath.clear();
  BasePath.clear();
  AryPkgInfo.clear();
  CurrentService = -1;
  InitService = nullptr;
  LanguageMode = 0;
  SysLanguageMode = 0;
  giMaxRecords = 0;
  CheckDupTDECSub = {};
  Advance = {};
  UserRecord = {};
  LangChanger().SetLanguage(0);
  LangChanger().SetAnsiInterface(false);
  SetServerPathOverride(std::nullopt);
  for (auto* list : {&Addon, &AddonToolBar, &Service, &AddonMenu, &InboxMsgType, &InboxSrvType,
                     &OutboxMsgType, &SentBoxMsgType, &InboxAction, &InboxActList, &C_InboxMsgType,
                     &C_InboxSrvType, &C_OutboxMsgType, &C_SentBoxMsgType}) {
    list->reset();
  }
}

}  // namespace mv::test
