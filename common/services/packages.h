// Service packages: the table of installed services (AryPkgInfo), loading their packages (at
// start-up or on first use), calling into them through a named entry point with the C interface
// of service_abi.h, the menu entries they contribute (AddonMenu), and questions about the
// installation. Package files are shared libraries.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "common/frame/string_list.h"
#include "common/services/service_abi.h"

namespace mv {

// Builds AryPkgInfo and AddonMenu from service lines "name,extra,mode": one entry per line in
// order. The package path is [Plugin] name of the system configuration file, by default name +
// the platform's package extension (found by the system's module search). Mode "1" or "2" loads
// the package now; anything else defers it to the first CallService. The lines of section
// name + "_MENU" are appended to AddonMenu in service order, and AddonMenu is finally reduced to
// values. A package that cannot be loaded is reported in an error box ("Can't load Plugin
// Package: " + path) and keeps handle 0; the other lines go on.
void LoadPluginPacks(const TStringList& list);

// Calls the entry point `funcName` of the first service named `service` (exact comparison) with
// `code` and `args`. Unknown service: the bilingual "is not found" box, nothing is called. When
// the service differs from the one called last, the entry point is looked up again (a package not
// yet loaded is loaded and sent code 500 first); a call to the same service as last time reuses
// the entry point found then, whatever `funcName` is. A missing export (or a package that cannot
// be loaded) raises EOSError with the system's message.
void CallService(const std::string& service, const std::string& funcName, int32_t code,
                 std::span<const mv_arg> args = {});

// Whether `service` is in AryPkgInfo (exact, case-sensitive comparison).
bool HasFindService(const std::string& service);

// Binds the host program's exports "SetMenu", "SetAddonToolBar", "ChangeFolder" and
// "RefreshFolder" into SetMenuStatus, SetAddonToolBarStatus, ChangeFolder and RefreshFolder
// (a missing export leaves its pointer null) and sets InitStatus. Does nothing once InitStatus is
// true. The host must export them (for example by linking with -rdynamic).
void LoadExtFunc();

// Hangs a service and a document type on a tag: `tag` receives a new two-line list (service, then
// document type). The holder of the tag owns the list and frees it with FreeServiceTag.
void StoreServiceandDocType(intptr_t& tag, const std::string& service, const std::string& docType);
// The list stored in `tag` by StoreServiceandDocType.
const TStringList& ServiceTagList(intptr_t tag);
// Frees the list stored in `tag` and sets `tag` to 0.
void FreeServiceTag(intptr_t& tag);

// True when [Syntax Level] SQAID of the system configuration file contains "Orvex".
bool IsOrvex();
// True when any value of [SERVICES] of the system configuration file contains "Varne"
// (case-sensitive).
bool IsVarne();
// True when the installation is of the Halvo edition: [System] Edition=Halvo in the system
// configuration file (compared without regard to case).
bool IsHalvo();

}  // namespace mv
