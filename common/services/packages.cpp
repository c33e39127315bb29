#include "common/services/packages.h"

#include "common/frame/config_helpers.h"
#include "common/frame/errors.h"
#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "modules/mv_edition.h"
#include "platform/codepage/codepage.h"
#include "platform/ini/ini_file.h"
#include "platform/modules/module_loader.h"

namespace mv {
namespace {

const char* const kSystemIni = "SEDIFSYS.INI";

std::string PackagePath(const ini::TIniFile& ini, const std::string& serviceName) {
  return ini.ReadString("Plugin", serviceName, modules::ModuleFileName(serviceName));
}

std::u16string Wide(const std::string& narrow) {
  return codepage::ToWide(narrow, codepage::SystemCodePage());
}

int FindService(const std::string& service) {
  for (size_t i = 0; i < AryPkgInfo.size(); ++i) {
    if (AryPkgInfo[i].ServiceName == service) return static_cast<int>(i);
  }
  return -1;
}

void ShowServiceNotFound(const std::string& service) {
  TLangChanger& lang = LangChanger();
  std::u16string text = lang.CStrW("Service module ", "尋找不到服務元件") + Wide(service) +
                        lang.CStrW(" is not found. If you want to know \r\nmore information, "
                                   "please contact Merovan!",
                                   "，如果你想知道\r\n更多有關資料，請與Merovan聯絡。");
  ShowErrorBox(text);
}

// Loads the package of the service at `index` that is not loaded yet, then sends it code 500.
void LoadDeferredPackage(int index, const std::string& funcName) {
  TPackInfo& package = AryPkgInfo[static_cast<size_t>(index)];
  InitService = nullptr;
  {
    const ini::TIniFile ini(ServerPath + kSystemIni);
    package.Handle = modules::LoadModule(PackagePath(ini, package.ServiceName));
  }
  if (package.Handle == 0) throw EOSError(modules::LastModuleError());
  InitService = reinterpret_cast<mv_service_entry>(modules::GetExport(package.Handle, funcName));
  if (InitService != nullptr) InitService(MV_SERVICE_START, nullptr, -1);
}

}  // namespace

void LoadPluginPacks(const TStringList& list) {
  const ini::TIniFile ini(ServerPath + kSystemIni);
  AryPkgInfo.assign(list.size(), TPackInfo{});
  for (size_t i = 0; i < list.size(); ++i) {
    std::string path;
    try {
      const std::string name = UserTitle(list[i], ',', 1);
      path = PackagePath(ini, name);
      TPackInfo& package = AryPkgInfo[i];
      package.ServiceName = name;
      package.ServiceExtra = UserTitle(list[i], ',', 2);
      const std::string mode = UserTitle(list[i], ',', 3);
      if (mode == "1" || mode == "2") {
        package.Handle = modules::LoadModule(path);
        if (package.Handle == 0) throw EOSError(modules::LastModuleError());
      }
      TStringList menu = ini.ReadSectionValues(name + "_MENU");
      AddonMenu->insert(AddonMenu->end(), menu.begin(), menu.end());
    } catch (const std::exception&) {
      ShowErrorBox(LangChanger().CStrW("Can't load Plugin Package: ", "不能安裝建立裝置: ") +
                   Wide(path));
    }
  }
  GetStringListValue(*AddonMenu);
}

void CallService(const std::string& service, const std::string& funcName, int32_t code,
                 std::span<const mv_arg> args) {
  int index = FindService(service);
  if (index < 0) {
    ShowServiceNotFound(service);
    return;
  }
  if (index != CurrentService) {
    CurrentService = index;
    const TPackInfo& package = AryPkgInfo[static_cast<size_t>(index)];
    if (package.Handle != 0) {
      InitService =
          reinterpret_cast<mv_service_entry>(modules::GetExport(package.Handle, funcName));
    } else {
      LoadDeferredPackage(index, funcName);
    }
  }
  if (InitService == nullptr) throw EOSError(modules::LastModuleError());
  InitService(code, args.empty() ? nullptr : args.data(), static_cast<int32_t>(args.size()) - 1);
}

bool HasFindService(const std::string& service) { return FindService(service) >= 0; }

void LoadExtFunc() {
  if (InitStatus) return;
  modules::ModuleHandle program = modules::LoadProgramModule();
  if (program == 0) return;
  auto bind = [program](const char* name) {
    return reinterpret_cast<mv_host_proc>(modules::GetExport(program, name));
  };
  SetMenuStatus = bind("SetMenu");
  SetAddonToolBarStatus = bind("SetAddonToolBar");
  ChangeFolder = bind("ChangeFolder");
  RefreshFolder = bind("RefreshFolder");
  InitStatus = true;
  modules::FreeModule(program);
}

void StoreServiceandDocType(intptr_t& tag, const std::string& service,
                            const std::string& docType) {
  tag = reinterpret_cast<intptr_t>(new TStringList{service, docType});
}

const TStringList& ServiceTagList(intptr_t tag) {
  return *reinterpret_cast<const TStringList*>(tag);
}

void FreeServiceTag(intptr_t& tag) {
  delete reinterpret_cast<TStringList*>(tag);
  tag = 0;
}

bool IsOrvex() {
  const ini::TIniFile ini(ServerPath + kSystemIni);
  return ini.ReadString("Syntax Level", "SQAID", "").find("Orvex") != std::string::npos;
}

bool IsVarne() {
  const ini::TIniFile ini(ServerPath + kSystemIni);
  for (const std::string& line : ini.ReadSectionValues("SERVICES")) {
    if (TupleValue(line).find("Varne") != std::string::npos) return true;
  }
  return false;
}

bool IsHalvo() { return modules::MV_IsHalvo(ServerPath + kSystemIni); }

}  // namespace mv
