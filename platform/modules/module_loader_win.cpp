// Windows: modules through LoadLibraryExW, GetProcAddress and FreeLibrary.
#include <windows.h>
// windows.h defines FreeModule as a macro for FreeLibrary; the name is ours here.
#undef FreeModule

#include "platform/files/wide_names_p.h"
#include "platform/modules/module_loader.h"

namespace mv::modules {
namespace {

thread_local std::string lastError;

void RememberError(const std::string& what) {
  lastError = what + ": " + files::SystemErrorText(::GetLastError());
}

}  // namespace

std::string ModuleFileName(std::string_view baseName) {
  return std::string(baseName) + std::string(kPackageExtension);
}

ModuleHandle LoadModule(const std::string& path) {
  const std::optional<std::wstring> name = files::WideFileName(path);
  if (!name) {
    lastError = "the module name holds a zero byte";
    return 0;
  }
  // With a folder in the name, the DLLs the module needs are looked for beside it first.
  const bool hasFolder = name->find_first_of(L"\\/") != std::wstring::npos;
  const HMODULE module =
      ::LoadLibraryExW(name->c_str(), nullptr, hasFolder ? LOAD_WITH_ALTERED_SEARCH_PATH : 0);
  if (module == nullptr) RememberError(path);
  return reinterpret_cast<ModuleHandle>(module);
}

ModuleHandle LoadProgramModule() {
  // Counted like any other load, so that FreeModule may release it.
  HMODULE module = nullptr;
  if (!::GetModuleHandleExW(0, nullptr, &module)) RememberError("the program's module");
  return reinterpret_cast<ModuleHandle>(module);
}

void* GetExport(ModuleHandle module, const std::string& name) {
  if (module == 0) {
    lastError = "module not loaded";
    return nullptr;
  }
  const FARPROC address = ::GetProcAddress(reinterpret_cast<HMODULE>(module), name.c_str());
  if (address == nullptr) RememberError(name);
  return reinterpret_cast<void*>(address);
}

void FreeModule(ModuleHandle module) {
  if (module != 0) ::FreeLibrary(reinterpret_cast<HMODULE>(module));
}

std::string LastModuleError() {
  return lastError;
}

}  // namespace mv::modules
