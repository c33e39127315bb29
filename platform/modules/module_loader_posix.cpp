#include <dlfcn.h>

#include "platform/files/file_names.h"
#include "platform/modules/module_loader.h"

namespace mv::modules {
namespace {

thread_local std::string lastError;

void RememberError() {
  const char* text = ::dlerror();
  lastError = text != nullptr ? text : "unknown module error";
}

}  // namespace

std::string ModuleFileName(std::string_view baseName) {
  return std::string(baseName) + std::string(kPackageExtension);
}

ModuleHandle LoadModule(const std::string& path) {
  const std::optional<std::string> name = files::EncodeFileName(path);
  if (!name) {
    lastError = "the module name holds a zero byte";
    return 0;
  }
  void* handle = ::dlopen(name->c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) RememberError();
  return reinterpret_cast<ModuleHandle>(handle);
}

ModuleHandle LoadProgramModule() {
  void* handle = ::dlopen(nullptr, RTLD_NOW);
  if (handle == nullptr) RememberError();
  return reinterpret_cast<ModuleHandle>(handle);
}

void* GetExport(ModuleHandle module, const std::string& name) {
  if (module == 0) {
    lastError = "module not loaded";
    return nullptr;
  }
  ::dlerror();
  void* address = ::dlsym(reinterpret_cast<void*>(module), name.c_str());
  if (address == nullptr) RememberError();
  return address;
}

void FreeModule(ModuleHandle module) {
  if (module != 0) ::dlclose(reinterpret_cast<void*>(module));
}

std::string LastModuleError() {
  return lastError;
}

}  // namespace mv::modules
