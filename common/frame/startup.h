// The start and clean-up routines the host program calls, and small routines of the frame.
// Calling order: (library start-up); Init or Init_Quenta; any use; FreeStrList or
// FreeStrList_Quenta; (library shut-down).
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace mv {

// Orvex line start, once, before anything else of the library is used: finds the installation
// from the registry value "ServerPath" of "\SOFTWARE\Merovan\Orvex4", sets ServerPath and
// BasePath (both ending with a separator), loads the system settings (InitRecord), the Internet
// settings and certificate names, and registers the print preview. When the folder is missing it
// shows the error box "Unable to initialize <title>. Server Path: "<path>" not found. Application
// Terminated." and ends the process with exit code 0.
void Init();

// Quenta line start: as Init with the key "\SOFTWARE\Merovan\QNVS4" and InitRecord_Quenta, then
// giMaxRecords from [Halvo] MaxRecords, kept within 1000 ..= 50000.
void Init_Quenta();

// Orvex line clean-up: sends code 505 to every loaded service package, then frees Addon,
// AddonToolBar, Service, AddonMenu, InboxMsgType, OutboxMsgType, SentBoxMsgType, InboxSrvType.
// The lists must not be used afterwards; a second call is not allowed.
void FreeStrList();

// Quenta line clean-up: tells no package, frees DetRecord's lists and the lists of FreeStrList
// plus the four "C_" lists.
void FreeStrList_Quenta();

// Puts the floating-point control word saved at start-up back when a database driver of an old
// system changed it; nothing on systems of major version 5 or more.
void ReSolveAdoFPU();
// The control word ReSolveAdoFPU loads: nothing when the system's major version is known and 5
// or more, or when the current word's low 16 bits equal the saved one; else the saved word.
std::optional<unsigned short> AdoFpuWordToLoad(std::optional<unsigned> osMajorVersion,
                                               unsigned short current, unsigned short saved);

// The pseudo-folder's name in the current language: "[Working Folder]" / "[工作資料夾]" (narrow
// text in the user's code page); "[Working Folder]" when the chosen text is empty.
std::string WorkingFolder();

// The code page of the machine as decimal text: the system's when `system` is true, else the
// user's.
std::string MV_GetCodepage(bool system);

// For administration tools: use `folder` as the server folder instead of the registry value
// (nothing = the registry again).
void SetServerPathOverride(std::optional<std::string> folder);

// The first steps of every start: Global_Merovan_Ini := "SEDIFSYS.INI", LOCAL_Merovan_Ini :=
// "WIN.INI", ServerPath from the value "ServerPath" of `registryKey` (or SetServerPathOverride's),
// the start-up error box and the end of the process when that folder is missing, then ServerPath
// with its final separator and BasePath, its parent. The start routines call it.
void LocateInstallation(const char* registryKey);

// Registers the print-preview dialog with the report engine through the routine set below;
// nothing when none is set. The start routines call it last.
void RegisterPrintPreview();

// The routine that registers the print-preview dialog with the report engine; the forms layer
// sets it. Init calls it; with none set, nothing happens.
void SetPrintPreviewRegistration(std::function<void()> registration);

}  // namespace mv
