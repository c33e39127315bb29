// The process-wide shared state of the library: where the installation lives, the settings
// records, the message-type lists of the three mail boxes, the loaded service packages, the host
// program's entry points and the machine's code pages. The library owns all of it; callers read
// it (and write it where a comment says so). Narrow texts are bytes in the system code page.
// Lifecycle: machine facts are valid once the library has started (library.h); everything else
// after Init / Init_Quenta (startup.h); the string lists until FreeStrList / FreeStrList_Quenta.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "common/frame/string_list.h"
#include "common/services/service_abi.h"
#include "platform/modules/module_loader.h"
#include "platform/system/machine.h"

namespace mv {

// --- Configuration locations ------------------------------------------------------------------

// File name of the system configuration file, "SEDIFSYS.INI" after start-up; always used as
// ServerPath + this name.
extern std::string Global_Merovan_Ini;
// File name of the per-machine configuration file, "WIN.INI" after start-up.
extern std::string LOCAL_Merovan_Ini;
// The installation's server folder, ending with one path separator after start-up.
extern std::string ServerPath;
// The parent folder of ServerPath, ending with a separator (empty when ServerPath has no parent).
extern std::string BasePath;

// --- Settings records ---------------------------------------------------------------------------

// The signed-in user and the user's own choices.
struct TUserRecord {
  std::string UserID;
  std::string UserName;
  // The user's language: 0 Chinese, 1 English.
  uint8_t Language = 0;
};

// Advanced settings of [Advance] and the recipient identities of [Receipient].
struct TAdvance {
  std::string EDIInPath;
  std::string EDIOutPath;
  std::string UpgradePath;
  std::string Government;  // at most 35 characters
  std::string ECIC;        // at most 35 characters
  std::string Merovan;     // at most 35 characters
  bool WarnTDEC = false;
  std::string SecurePath;
  bool SupportTypeB = false;
};

// Upgrade settings of the installation. No key of the configuration files fills them, so the
// record has no fields yet; it belongs to the shared state and is released with it, so that the
// packages that refer to it find it.
struct TUpgradeRecord {};

// The user-defined reference fields of a service (common/services/user_fields.h): three
// parallel lists, one line per field in field order (five once GetUserDefineFields has filled
// them), narrow text in the system code page. Null until filled or created.
struct TDefinedRecord {
  std::unique_ptr<TStringList> FieldName;   // the mail-box column of the field: "Ref1" .. "Ref5"
  std::unique_ptr<TStringList> EngCaption;  // its English caption, "Ref #1" .. by default
  std::unique_ptr<TStringList> ChiCaption;  // its Chinese caption, "Ref #1" .. by default
};

// Display colours by kind of field: date-time, integer, string, others.
struct TColorRecord {
  int32_t DateTime = 0;
  int32_t Integer = 0;
  int32_t String = 0;
  int32_t Others = 0;
};

// E-mail and connection settings. Text fields hold at most 50 characters.
struct TInternet {
  std::string SMTPHost;
  std::string MvnEmailAddr;
  std::string EDIContentType;
  std::string EmailContentType;
  std::string EDISubject;
  int32_t MDNRespTime = 0;
  int32_t SMTPPort = 0;
  int32_t POP3Port = 0;
  std::string RASProfile;
  bool LeaseLine = false;
  std::string SO_MvnEmailAddr;
  std::string ECICEmailAddr;
  std::string TTRS_MvnEmailAddr;
};

// Settings of the duplicate-submission check (Quenta line).
struct TCheckDupTDECSub {
  bool Auto = false;
  std::string DocType;
  bool MBLAWB = false;
  bool HBLAWB = false;
  std::string Transport;
  int32_t Days = 0;
};

extern TUserRecord UserRecord;
extern TAdvance Advance;
extern TUpgradeRecord UpgradeRecord;
// The user-defined fields of the declaration service; filled by the backup and restore start
// (backup_startup.h).
extern TDefinedRecord DefinedRecord;
// Same shape as DefinedRecord; used by the Quenta line, whose settings loader creates its lists
// empty and whose clean-up frees them.
extern TDefinedRecord DetRecord;
extern TColorRecord ColorRecord;
extern TInternet Internet;
extern TCheckDupTDECSub CheckDupTDECSub;
// [System] Version of the system configuration file, at most 20 characters.
extern std::string Version;

// Certificate distinguished names.
extern std::string MVNCERTDN, SO_MVNCERTDN, ECIC_MVNCERTDN, TTRS_MVNCERTDN, MVNCERTCADN;

// Hyperlinks.
extern std::string TransactionGatewayURL, ebizURL, FAQURL, MerovanURL, BonusURL, HKSCSURL,
    ContactURL_E, ContactURL_C, DataExpURL_E, DataExpURL_C, IDCertRenewalURL, IDCertCollectURL;

// Internet options and default key numbers.
extern int32_t EncryptLDAPOption, VerifyLDAPOption, MIMEType;
extern int32_t DEFINE_AUTH_KEY, DEFINE_CONF_KEY;
extern bool DebugMode;

// The language every text is shown in now (0 Chinese, 1 English; 3 simplified Chinese where a
// routine knows it), and the language of the installation.
extern uint8_t LanguageMode;
extern uint8_t SysLanguageMode;

// Refresh intervals of the inbox and sent box in seconds; 0 means no automatic refresh.
extern int32_t iInboxRefresh, iSentboxRefresh;

// --- Mail-box message types -----------------------------------------------------------------

// One entry of a per-box message-type table.
struct TMType {
  std::string MsgType;  // the message-type name: a key of the box section
  std::string MsgCode;  // one message code of that key's value
  std::string Action;   // the inbox action; empty in the outbox and sent-box tables
};

// The boxes, in the order of the tables below.
enum TBox { bxInbox = 0, bxOutbox = 1, bxSentbox = 2 };

// Names of the configuration sections of the three boxes: "InboxMsgType", "OutboxMsgType",
// "SentboxMsgType".
extern const std::array<std::string, 3> BoxSectionName;
// The per-box message-type tables.
extern std::array<std::vector<TMType>, 3> BoxRec;
// The values of each box's configuration section.
extern std::array<std::unique_ptr<TStringList>, 3> BoxMsgType;

// Most rows a list may fetch (Quenta line, 1000 ..= 50000 after Init_Quenta; 0 in the Orvex line).
extern int32_t giMaxRecords;
// Whether imported spreadsheet and comma-separated files are validated (for service packages).
extern bool gbValidateImpXLSCSV;

// String lists made by the settings loader and freed by FreeStrList / FreeStrList_Quenta.
extern std::unique_ptr<TStringList> Addon, AddonToolBar, Service, AddonMenu, InboxMsgType,
    InboxSrvType, OutboxMsgType, SentBoxMsgType, InboxAction, InboxActList;
// Quenta line only.
extern std::unique_ptr<TStringList> C_InboxMsgType, C_InboxSrvType, C_OutboxMsgType,
    C_SentBoxMsgType;

// --- Service packages and host entry points ---------------------------------------------------

// One installed service.
struct TPackInfo {
  std::string ServiceName;         // field 1 of the service line
  std::string ServiceExtra;        // field 2 of the service line, kept unchanged
  modules::ModuleHandle Handle{};  // the loaded package; 0 while not loaded
};

extern std::vector<TPackInfo> AryPkgInfo;
// The entry point last resolved for CurrentService; null when none.
extern mv_service_entry InitService;
// Index in AryPkgInfo of the service called last; -1 when none.
extern int32_t CurrentService;
// Separately loaded libraries (0 = none); set and used by callers.
extern modules::ModuleHandle hDLL, hLumoraDLL;
// Entry points the host program exports as "SetMenu", "SetAddonToolBar", "ChangeFolder" and
// "RefreshFolder"; bound by LoadExtFunc.
extern mv_host_proc SetMenuStatus, SetAddonToolBarStatus, ChangeFolder, RefreshFolder;
// True once LoadExtFunc has bound the host's entry points.
extern bool InitStatus;

// A call-back of the host: an object and a method, called with tagged arguments. The host sets
// them and the service packages call them; this library neither sets nor calls them.
struct TMethodCallback {
  void* Object = nullptr;
  void (*Code)(void* object, const mv_arg* args, int32_t high) = nullptr;
};
extern TMethodCallback RefreshMain, ViewResponseMsg;
// A composite report being put together by the host and the service packages.
extern void* TempCompositeReport;
// Flags of an add-on dialog and of the print button, and the result an add-on leaves.
extern bool AddonDone, PrintBtnIsClicked;
extern uint16_t AddonResult;
// Time-outs handed to database read and write calls (-1 = the driver's default).
extern int32_t iReadTimeOut, iWriteTimeOut;
// Retry counter of the lock-file attempts.
extern int32_t FRetryAccess;
// The character table "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ(),-./=".
extern std::string strChineseTable;
// For the host; not used by the library.
extern bool gvsSelectPath;

// --- Machine facts, set once by the library start-up ------------------------------------------

extern uint32_t wm_eAdvertise;
extern sys::TOSVersionInfo MV_OSVersionInfo;
extern uint16_t MV_SysCodePage;
extern uint16_t MV_UsrCodePage;

}  // namespace mv
