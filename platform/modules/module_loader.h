// Dynamic modules: load a shared library by path, look up an export by name, release it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mv::modules {

// A loaded module; 0 means "not loaded".
using ModuleHandle = std::uintptr_t;

// The platform's file extension of package modules (service packages, outside check libraries).
#ifdef _WIN32
inline constexpr std::string_view kPackageExtension = ".dll";
#else
inline constexpr std::string_view kPackageExtension = ".so";
#endif

// The platform's file name of a module called `baseName` ("ChkBRN" -> "ChkBRN.so").
std::string ModuleFileName(std::string_view baseName);

// Loads the module at `path` (narrow, system code page) and runs its initialisation; a name
// without a folder is looked for by the system's module search. Returns 0 on failure
// (LastModuleError tells why). Windows: the modules a package needs are looked for in its own
// folder first.
ModuleHandle LoadModule(const std::string& path);

// Loads the running program's own executable file as a module, so its exports can be found.
// Returns 0 on failure.
ModuleHandle LoadProgramModule();

// The address of the export `name`, or nullptr when the module has none of that name.
void* GetExport(ModuleHandle module, const std::string& name);

// Releases one load of the module. A handle of 0 is ignored.
void FreeModule(ModuleHandle module);

// The text of the last failure of LoadModule / GetExport in this thread.
std::string LastModuleError();

}  // namespace mv::modules
