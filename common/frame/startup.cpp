#include "common/frame/startup.h"

#include <algorithm>
#include <clocale>

#include "common/frame/internet_settings.h"
#include "common/frame/library.h"
#include "common/frame/settings_loader.h"
#include "common/frame/shared_state.h"
#include "common/services/packages.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "modules/mv_codepage.h"
#include "platform/codepage/codepage.h"
#include "platform/files/paths.h"
#include "platform/ini/ini_file.h"
#include "platform/registry/registry.h"
#include "platform/system/machine.h"

namespace mv {
namespace {

constexpr int32_t kMinRecords = 1000;
constexpr int32_t kMaxRecords = 50000;

std::optional<std::string>& ServerPathOverride() {
  static std::optional<std::string> folder;
  return folder;
}

std::function<void()>& PreviewRegistration() {
  static std::function<void()> registration;
  return registration;
}

std::string RegistryServerPath(const char* key) {
  if (ServerPathOverride()) return *ServerPathOverride();
  std::optional<std::u16string> value = registry::ReadLocalMachineString(key, "ServerPath");
  return value ? codepage::FromWide(*value, codepage::SystemCodePage()) : std::string();
}

// Steps shared by both lines: configuration names, decimal point, the server and base folders.
void FindInstallation(const char* registryKey) {
  // Numbers in configuration files and SQL text always use "." whatever the region says.
  std::setlocale(LC_NUMERIC, "C");
  LocateInstallation(registryKey);
}

}  // namespace

void LocateInstallation(const char* registryKey) {
  Global_Merovan_Ini = "SEDIFSYS.INI";
  LOCAL_Merovan_Ini = "WIN.INI";
  ServerPath = RegistryServerPath(registryKey);
  if (ServerPath.empty() || !files::DirectoryExists(ServerPath)) {
    const std::string title = sys::ApplicationTitle();
    ShowErrorBox(codepage::ToWide("Unable to initialize " + title + ". Server Path: \"" +
                                      ServerPath + "\" not found. Application Terminated.",
                                  codepage::SystemCodePage()));
    sys::TerminateProcess(0);
  }
  ServerPath = files::IncludeTrailingDelimiter(ServerPath);
  BasePath = files::IncludeTrailingDelimiter(
      files::ExtractFilePath(std::string_view(ServerPath).substr(0, ServerPath.size() - 1)));
}

void RegisterPrintPreview() {
  if (PreviewRegistration()) PreviewRegistration()();
}

namespace {

void FreeLists(std::initializer_list<std::unique_ptr<TStringList>*> lists) {
  for (auto* list : lists) list->reset();
}

}  // namespace

void Init() {
  FindInstallation("\\SOFTWARE\\Merovan\\Orvex4");
  InitRecord();
  InitInternetRecord();
  GetDNs();
  RegisterPrintPreview();
}

void Init_Quenta() {
  FindInstallation("\\SOFTWARE\\Merovan\\QNVS4");
  InitRecord_Quenta();
  InitInternetRecord();
  GetDNs();
  RegisterPrintPreview();
  const ini::TIniFile ini(ServerPath + "SEDIFSYS.INI");
  giMaxRecords = std::clamp(ini.ReadInteger("Halvo", "MaxRecords", 0), kMinRecords, kMaxRecords);
}

void FreeStrList() {
  for (const TPackInfo& package : std::vector<TPackInfo>(AryPkgInfo)) {
    if (package.Handle != 0) CallService(package.ServiceName, "InitService", MV_SERVICE_STOP);
  }
  FreeLists({&Addon, &AddonToolBar, &Service, &AddonMenu, &InboxMsgType, &OutboxMsgType,
             &SentBoxMsgType, &InboxSrvType});
}

void FreeStrList_Quenta() {
  FreeLists({&DetRecord.FieldName, &DetRecord.EngCaption, &DetRecord.ChiCaption, &Addon,
             &AddonToolBar, &Service, &AddonMenu, &InboxMsgType, &OutboxMsgType, &SentBoxMsgType,
             &C_InboxMsgType, &C_OutboxMsgType, &C_SentBoxMsgType, &InboxSrvType, &C_InboxSrvType});
}

std::optional<unsigned short> AdoFpuWordToLoad(std::optional<unsigned> osMajorVersion,
                                               unsigned short current, unsigned short saved) {
  if (osMajorVersion && *osMajorVersion >= 5) return std::nullopt;
  if (current == saved) return std::nullopt;
  return saved;
}

void ReSolveAdoFPU() {
  sys::TOSVersionInfo info;
  info.dwOSVersionInfoSize = sys::kOSVersionInfoSize;
  std::optional<unsigned> major;
  if (sys::GetVersionEx(info)) major = info.dwMajorVersion;
  if (auto word = AdoFpuWordToLoad(major, sys::GetFpuControlWord(), SavedFpuControlWord())) {
    sys::SetFpuControlWord(*word);
  }
}

std::string WorkingFolder() {
  std::string text = LangChanger().CStr("[Working Folder]", "[工作資料夾]");
  return text.empty() ? "[Working Folder]" : text;
}

std::string MV_GetCodepage(bool system) {
  return modules::MV_GetCodepage(system);
}

void SetServerPathOverride(std::optional<std::string> folder) {
  ServerPathOverride() = std::move(folder);
}

void SetPrintPreviewRegistration(std::function<void()> registration) {
  PreviewRegistration() = std::move(registration);
}

}  // namespace mv
