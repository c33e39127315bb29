#include "common/frame/settings_loader.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "common/frame/advance_values.h"
#include "common/frame/config_helpers.h"
#include "common/frame/shared_state.h"
#include "common/services/packages.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "common/text/str_utils.h"
#include "modules/mv_edition.h"
#include "platform/files/paths.h"
#include "platform/ini/ini_file.h"

namespace mv {
namespace {

constexpr size_t kVersionLength = 20;

std::unique_ptr<TStringList> NewList() {
  return std::make_unique<TStringList>();
}

// The text without its first character ("" stays "").
std::string_view WithoutFirst(std::string_view text) {
  return text.empty() ? text : text.substr(1);
}

std::unique_ptr<TStringList> SectionValues(const ini::TIniFile& ini, std::string_view section) {
  auto list = std::make_unique<TStringList>(ini.ReadSectionValues(section));
  GetStringListValue(*list);
  return list;
}

// The message-type table of one box from its section; the inbox also takes its actions.
void BuildBoxTable(const ini::TIniFile& ini, int box) {
  const std::string& section = BoxSectionName[box];
  BoxMsgType[box] = SectionValues(ini, section);
  const TStringList& values = *BoxMsgType[box];
  const TStringList keys = ini.ReadSection(section);

  size_t size = 0;
  for (const std::string& line : values) size += static_cast<size_t>(GetCount('|', line));
  std::vector<TMType>& table = BoxRec[box];
  table.assign(size, TMType{});

  size_t next = 0;
  for (size_t j = 0; j < values.size(); ++j) {
    int codes = GetCount('|', values[j]);
    for (int k = 1; k <= codes; ++k) {
      TMType& entry = table[next++];
      entry.MsgCode = UserTitle(WithoutFirst(values[j]), '|', k);
      entry.MsgType = LineAt(keys, j);
      if (box == bxInbox) entry.Action = UserTitle(WithoutFirst(LineAt(*InboxAction, j)), '|', k);
    }
  }
}

void ReadFirstTable(const ini::TIniFile& ini, bool quenta) {
  Version = ini.ReadString("System", "Version", "4.0").substr(0, kVersionLength);
  // The Quenta line reads the declaration service key here and does not use it.
  if (quenta) (void)ini.ReadString("INIT_SERVICE", "TDEC", "TDEC_SERVICE");
  ColorRecord.DateTime = ini.ReadInteger("Property", "DateTime", 0);
  ColorRecord.Integer = ini.ReadInteger("Property", "Integer", 0);
  ColorRecord.String = ini.ReadInteger("Property", "String", 0);
  ColorRecord.Others = ini.ReadInteger("Property", "Others", 0);
  Advance.Government = RecipientIdentity(AllTrim(ini.ReadString("Receipient", "Government", "")));
  Advance.ECIC = RecipientIdentity(AllTrim(ini.ReadString("Receipient", "ECIC", "")));
  Advance.Merovan = RecipientIdentity(AllTrim(ini.ReadString("Receipient", "Merovan", "")));
  Advance.EDIInPath = ini.ReadString("Advance", "EDIInPath", BasePath + "INBOX");
  Advance.EDIOutPath = ini.ReadString("Advance", "EDIOutPath", BasePath + "OUTBOX");
  Advance.UpgradePath = ini.ReadString("Advance", "UpgradePath", BasePath + "UPGRADE");
  Advance.WarnTDEC = ini.ReadBool("Advance", "WarnTDEC", true);
  // The Halvo edition always supports type B; the open file answers the edition question.
  Advance.SupportTypeB = modules::MV_IsHalvo(ini) || ini.ReadBool("Advance", "SupportTypeB", false);
  Advance.SecurePath = ini.ReadString("Advance", "SecurePath", BasePath + "SEC");

  // The message folders get their final separator (an empty UpgradePath stays empty, meaning
  // "no upgrade folder"); SecurePath is kept as written.
  Advance.UpgradePath = files::IncludeTrailingDelimiter(Advance.UpgradePath);
  Advance.EDIInPath = WithFinalDelimiter(Advance.EDIInPath);
  Advance.EDIOutPath = WithFinalDelimiter(Advance.EDIOutPath);
}

void ReadInterfaceLanguage(const ini::TIniFile& ini) {
  LangChanger().SetAnsiInterface(ini.ReadInteger("Language", "AnsiGUI", 0) == 1);
  int32_t language = ini.ReadInteger("Language", "Interface", 1);
  LanguageMode = static_cast<uint8_t>(language);
  SysLanguageMode = LanguageMode;
  if (language == 0) LangChanger().ChineseTogether();
  if (language == 1) LangChanger().EnglishTogether();
}

void ReadDuplicateSubmission(const ini::TIniFile& ini) {
  const char* section = "Duplicate_Submission";
  CheckDupTDECSub.Auto = ini.ReadBool(section, "Auto", false);
  CheckDupTDECSub.DocType = ini.ReadString(section, "DocType", "F2|F2A");
  CheckDupTDECSub.MBLAWB = ini.ReadBool(section, "MBLAWB", false);
  CheckDupTDECSub.HBLAWB = ini.ReadBool(section, "HBLAWB", true);
  CheckDupTDECSub.Transport = ini.ReadString(section, "Transport", "1|4|8");
  CheckDupTDECSub.Days = ini.ReadInteger(section, "Days", 60);
}

void LoadSettings(bool quenta) {
  if (quenta) {
    DetRecord.FieldName = NewList();
    DetRecord.EngCaption = NewList();
    DetRecord.ChiCaption = NewList();
  }
  for (auto* list : {&Addon, &AddonToolBar, &Service, &AddonMenu, &InboxMsgType, &OutboxMsgType,
                     &SentBoxMsgType, &InboxSrvType, &InboxAction, &InboxActList}) {
    *list = NewList();
  }
  if (quenta) {
    for (auto* list : {&C_InboxMsgType, &C_OutboxMsgType, &C_SentBoxMsgType, &C_InboxSrvType}) {
      *list = NewList();
    }
  }
  for (auto& box : BoxMsgType) box = NewList();

  const ini::TIniFile ini(ServerPath + Global_Merovan_Ini);
  ReadFirstTable(ini, quenta);

  *Addon = ini.ReadSectionValues("Addon");
  AddonToolBar = SectionValues(ini, "Addon_Toolbar");

  *Service = ini.ReadSectionValues("SERVICES");
  SortStringList(*Service);
  GetStringListValue(*Service);
  LoadPluginPacks(*Service);

  *InboxMsgType = ini.ReadSectionValues("InboxMsgType");
  *OutboxMsgType = ini.ReadSectionValues("OutboxMsgType");
  *SentBoxMsgType = ini.ReadSectionValues("SentboxMsgType");
  if (quenta) {
    *C_InboxMsgType = ini.ReadSectionValues("C_InboxMsgType");
    *C_OutboxMsgType = ini.ReadSectionValues("C_OutboxMsgType");
    *C_SentBoxMsgType = ini.ReadSectionValues("C_SentboxMsgType");
  }
  *InboxSrvType = ini.ReadSectionValues("InboxSrvType");
  if (quenta) *C_InboxSrvType = ini.ReadSectionValues("C_InboxSrvType");

  InboxAction = SectionValues(ini, "InboxAction");
  *InboxActList = ini.ReadSection("InboxAction");

  for (int box = bxInbox; box <= bxSentbox; ++box) BuildBoxTable(ini, box);

  for (const TPackInfo& package : std::vector<TPackInfo>(AryPkgInfo)) {
    if (package.Handle != 0) CallService(package.ServiceName, "InitService", MV_SERVICE_START);
  }
  if (quenta) ReadInterfaceLanguage(ini);

  iInboxRefresh = InboxRefreshSeconds(ini.ReadInteger("AUTO_REFRESH", "INBOX", 1010));
  iSentboxRefresh = SentboxRefreshSeconds(ini.ReadFloat("AUTO_REFRESH", "SENTBOX", 1000.02));
  if (quenta) ReadDuplicateSubmission(ini);
}

}  // namespace

int GetCount(char delimiter, std::string_view text) {
  std::string_view rest = WithoutFirst(text);
  int count = 0;
  while (rest.find(delimiter) != std::string_view::npos) {
    ++count;
    rest.remove_prefix(std::min<size_t>(7, rest.size()));
  }
  return count;
}

int32_t InboxRefreshSeconds(int32_t value) {
  if (value <= 1000) return 0;
  return static_cast<int32_t>(std::min<int64_t>((int64_t{value} - 1000) * 60, INT32_MAX));
}

int32_t SentboxRefreshSeconds(double value) {
  if (!(value > 1000.0)) return 0;
  double whole = std::trunc(value - 1000.0);
  double fraction = value - std::trunc(value);
  double seconds = whole * 60 + std::nearbyint(fraction * 100);
  return seconds >= INT32_MAX ? INT32_MAX : static_cast<int32_t>(seconds);
}

void InitRecord() {
  LoadSettings(false);
}

void InitRecord_Quenta() {
  LoadSettings(true);
}

}  // namespace mv
