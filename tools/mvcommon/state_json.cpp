#include "tools/mvcommon/state_json.h"

#include <memory>
#include <string>

#include "common/frame/shared_state.h"
#include "platform/codepage/codepage.h"

namespace mv::cli {
namespace {

using Json = nlohmann::ordered_json;

Json Text(const std::string& narrow) {
  return codepage::Utf8FromSystem(narrow);
}

Json Lines(const TStringList& list) {
  Json lines = Json::array();
  for (const std::string& line : list) lines.push_back(Text(line));
  return lines;
}

Json Lines(const std::unique_ptr<TStringList>& list) {
  return list ? Lines(*list) : Json();
}

Json AdvanceJson() {
  return {{"EDIInPath", Text(Advance.EDIInPath)},
          {"EDIOutPath", Text(Advance.EDIOutPath)},
          {"UpgradePath", Text(Advance.UpgradePath)},
          {"Government", Text(Advance.Government)},
          {"ECIC", Text(Advance.ECIC)},
          {"Merovan", Text(Advance.Merovan)},
          {"WarnTDEC", Advance.WarnTDEC},
          {"SecurePath", Text(Advance.SecurePath)},
          {"SupportTypeB", Advance.SupportTypeB}};
}

Json InternetJson() {
  return {{"SMTPHost", Text(Internet.SMTPHost)},
          {"MvnEmailAddr", Text(Internet.MvnEmailAddr)},
          {"EDIContentType", Text(Internet.EDIContentType)},
          {"EmailContentType", Text(Internet.EmailContentType)},
          {"EDISubject", Text(Internet.EDISubject)},
          {"MDNRespTime", Internet.MDNRespTime},
          {"SMTPPort", Internet.SMTPPort},
          {"POP3Port", Internet.POP3Port},
          {"RASProfile", Text(Internet.RASProfile)},
          {"LeaseLine", Internet.LeaseLine},
          {"SO_MvnEmailAddr", Text(Internet.SO_MvnEmailAddr)},
          {"ECICEmailAddr", Text(Internet.ECICEmailAddr)},
          {"TTRS_MvnEmailAddr", Text(Internet.TTRS_MvnEmailAddr)}};
}

Json CheckDupJson() {
  return {{"Auto", CheckDupTDECSub.Auto},
          {"DocType", Text(CheckDupTDECSub.DocType)},
          {"MBLAWB", CheckDupTDECSub.MBLAWB},
          {"HBLAWB", CheckDupTDECSub.HBLAWB},
          {"Transport", Text(CheckDupTDECSub.Transport)},
          {"Days", CheckDupTDECSub.Days}};
}

Json BoxRecJson() {
  Json boxes = Json::array();
  for (const std::vector<TMType>& table : BoxRec) {
    Json entries = Json::array();
    for (const TMType& entry : table) {
      entries.push_back({{"name", Text(entry.MsgType)},
                         {"code", Text(entry.MsgCode)},
                         {"action", Text(entry.Action)}});
    }
    boxes.push_back(std::move(entries));
  }
  return boxes;
}

Json PackagesJson() {
  Json packages = Json::array();
  for (const TPackInfo& package : AryPkgInfo) {
    packages.push_back({{"ServiceName", Text(package.ServiceName)},
                        {"ServiceExtra", Text(package.ServiceExtra)},
                        {"Loaded", package.Handle != 0}});
  }
  return packages;
}

}  // namespace

Json SharedStateJson() {
  Json state = Json::object();
  state["ServerPath"] = Text(ServerPath);
  state["BasePath"] = Text(BasePath);
  state["Version"] = Text(Version);
  state["Advance"] = AdvanceJson();
  state["ColorRecord"] = {ColorRecord.DateTime, ColorRecord.Integer, ColorRecord.String,
                          ColorRecord.Others};
  state["Internet"] = InternetJson();
  state["EncryptLDAPOption"] = EncryptLDAPOption;
  state["VerifyLDAPOption"] = VerifyLDAPOption;
  state["DEFINE_AUTH_KEY"] = DEFINE_AUTH_KEY;
  state["DEFINE_CONF_KEY"] = DEFINE_CONF_KEY;
  state["DebugMode"] = DebugMode;
  state["MIMEType"] = MIMEType;

  const std::pair<const char*, const std::string*> texts[] = {
      {"TransactionGatewayURL", &TransactionGatewayURL},
      {"ebizURL", &ebizURL},
      {"FAQURL", &FAQURL},
      {"MerovanURL", &MerovanURL},
      {"BonusURL", &BonusURL},
      {"HKSCSURL", &HKSCSURL},
      {"ContactURL_E", &ContactURL_E},
      {"ContactURL_C", &ContactURL_C},
      {"DataExpURL_E", &DataExpURL_E},
      {"DataExpURL_C", &DataExpURL_C},
      {"IDCertRenewalURL", &IDCertRenewalURL},
      {"IDCertCollectURL", &IDCertCollectURL},
      {"MVNCERTDN", &MVNCERTDN},
      {"SO_MVNCERTDN", &SO_MVNCERTDN},
      {"ECIC_MVNCERTDN", &ECIC_MVNCERTDN},
      {"TTRS_MVNCERTDN", &TTRS_MVNCERTDN},
      {"MVNCERTCADN", &MVNCERTCADN},
  };
  for (const auto& [name, text] : texts) state[name] = Text(*text);

  state["iInboxRefresh"] = iInboxRefresh;
  state["iSentboxRefresh"] = iSentboxRefresh;
  state["giMaxRecords"] = giMaxRecords;
  state["LanguageMode"] = int{LanguageMode};
  state["SysLanguageMode"] = int{SysLanguageMode};
  state["CheckDupTDECSub"] = CheckDupJson();

  const std::pair<const char*, const std::unique_ptr<TStringList>*> lists[] = {
      {"Addon", &Addon},
      {"AddonToolBar", &AddonToolBar},
      {"Service", &Service},
      {"AddonMenu", &AddonMenu},
      {"InboxMsgType", &InboxMsgType},
      {"OutboxMsgType", &OutboxMsgType},
      {"SentBoxMsgType", &SentBoxMsgType},
      {"InboxSrvType", &InboxSrvType},
      {"InboxAction", &InboxAction},
      {"InboxActList", &InboxActList},
  };
  for (const auto& [name, list] : lists) state[name] = Lines(*list);

  Json boxTypes = Json::array();
  for (const auto& list : BoxMsgType) boxTypes.push_back(Lines(list));
  state["BoxMsgType"] = std::move(boxTypes);
  state["BoxRec"] = BoxRecJson();
  state["AryPkgInfo"] = PackagesJson();
  return state;
}

}  // namespace mv::cli
