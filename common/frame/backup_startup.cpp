#include "common/frame/backup_startup.h"

#include "common/frame/advance_values.h"
#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/services/msg_fields.h"
#include "common/services/user_fields.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "modules/mv_edition.h"
#include "platform/codepage/codepage.h"
#include "platform/files/paths.h"
#include "platform/ini/ini_file.h"
#include "platform/modules/module_loader.h"

namespace mv {
namespace {

// The two editions of the tool differ in these steps.
struct TBackupTool {
  bool askEdition;   // the user-defined fields of ETDEC_SERVICE in the Halvo edition
  bool readAnsiGui;  // [Language] AnsiGUI sets the ANSI-interface flag
};

void ReadAdvance(const ini::TIniFile& ini, bool halvo) {
  Advance.Government =
      RecipientIdentity(TrimControls(ini.ReadString("Receipient", "Government", "")));
  Advance.Merovan = RecipientIdentity(TrimControls(ini.ReadString("Receipient", "Merovan", "")));
  Advance.EDIInPath = ini.ReadString("Advance", "EDIInPath", BasePath + "INBOX");
  Advance.EDIOutPath = ini.ReadString("Advance", "EDIOutPath", BasePath + "OUTBOX");
  Advance.WarnTDEC = ini.ReadBool("Advance", "WarnTDEC", true);
  Advance.SupportTypeB = halvo || ini.ReadBool("Advance", "SupportTypeB", false);
  Advance.EDIInPath = WithFinalDelimiter(Advance.EDIInPath);
  Advance.EDIOutPath = WithFinalDelimiter(Advance.EDIOutPath);
}

void StartBackupTool(TBackupTool tool) {
  LocateInstallation("\\SOFTWARE\\Merovan\\QNVS4");
  {
    const ini::TIniFile ini(ServerPath + "SEDIFSYS.INI");
    const bool halvo = modules::MV_IsHalvo(ini);
    GetUserDefineFields(tool.askEdition && halvo ? "ETDEC_SERVICE" : "TDEC_SERVICE", DefinedRecord);
    ReadAdvance(ini, halvo);
    if (tool.readAnsiGui) {
      LangChanger().SetAnsiInterface(ini.ReadInteger("Language", "AnsiGUI", 0) == 1);
    }
    LanguageMode = static_cast<uint8_t>(ini.ReadInteger("Language", "Interface", 1));
  }
  RegisterPrintPreview();
}

}  // namespace

void Init_BackupRestore() {
  StartBackupTool({.askEdition = true, .readAnsiGui = true});
}

void Init_LumoraBackupRestore() {
  StartBackupTool({.askEdition = false, .readAnsiGui = false});
}

void LoadPkg_BackupRestore(const TStringList& list) {
  TLangChanger& lang = LangChanger();
  for (const std::string& line : list) {
    const std::string name = UserTitle(line, ',', 1);
    const std::string title = UserTitle(line, ',', lang.Language() == kLangEnglish ? 2 : 3);
    const modules::ModuleHandle handle =
        modules::LoadModule(ServerPath + modules::ModuleFileName(name));
    if (handle == 0) {
      ShowErrorBox(lang.CStrW("Can't load Package: ", "不能安裝建立裝置: ") +
                   codepage::ToWide(line, codepage::SystemCodePage()));
      continue;
    }
    AryPkgInfo.push_back(TPackInfo{name, title, handle});
  }
}

}  // namespace mv
