#include "common/frame/internet_settings.h"

#include "common/frame/shared_state.h"
#include "common/text/str_utils.h"
#include "modules/mv_strings.h"
#include "platform/ini/ini_file.h"

namespace mv {
namespace {

constexpr size_t kInternetTextLength = 50;
constexpr const char* kSystemIni = "SEDIFSYS.INI";

// Where the default pages live; an installation names its own in [HYPERLINK].
constexpr const char* kMakerSite = "www.merovan.com.hk";
constexpr const char* kAuthoritySite = "www.merovancert.com.hk";
constexpr const char* kVendorSite = "www.microsoft.com";

// The distinguished name of the authority that issues the network's certificates.
constexpr const char* kIssuingAuthorityDN =
    "c=HK, o=MEROVAN CERTIFICATION SERVICES LIMITED, ou=BRN 31415926, "
    "cn=Merovan CA General Purpose Signing Certificate";

std::string Page(bool secure, const char* site, const char* path) {
  return std::string(secure ? "https://" : "http://") + site + path;
}

std::string Text50(const ini::TIniFile& ini, const char* section, const char* key) {
  return AllTrim(ini.ReadString(section, key, "")).substr(0, kInternetTextLength);
}

void ReadEmailSettings(const ini::TIniFile& system, const ini::TIniFile& machine) {
  const char* mail = "EMAIL_CONFIG";
  Internet.SMTPHost = Text50(system, mail, "SMTPHost");
  Internet.MvnEmailAddr = Text50(system, mail, "MvnEmailAddr");
  Internet.SO_MvnEmailAddr = Text50(system, mail, "SO_MvnEmailAddr");
  Internet.ECICEmailAddr = Text50(system, mail, "ECICEmailAddr");
  Internet.TTRS_MvnEmailAddr = Text50(system, mail, "TTRS_MvnEmailAddr");
  Internet.EDIContentType = Text50(system, mail, "EDIContentType");
  Internet.EmailContentType = Text50(system, mail, "EmailContentType");
  Internet.EDISubject = Text50(system, mail, "EDISubject");
  Internet.SMTPPort = system.ReadInteger(mail, "SMTPPort", 25);
  Internet.POP3Port = system.ReadInteger(mail, "POP3Port", 110);
  Internet.MDNRespTime = system.ReadInteger(mail, "MDNRespTime", 0);
  Internet.RASProfile = Text50(machine, "MEROVAN_CONNECTION", "RASProfile");
  Internet.LeaseLine = machine.ReadBool("MEROVAN_CONNECTION", "LeaseLine", false);
}

void ReadPolicy(const ini::TIniFile& system) {
  EncryptLDAPOption = system.ReadInteger("POLICY", "ENCRYPTLDAPOption", 1);
  VerifyLDAPOption = system.ReadInteger("POLICY", "VERFIYLDAPOption", 1);
  DEFINE_AUTH_KEY = system.ReadInteger("POLICY", "DEFAUTHKEY", 3);
  DEFINE_CONF_KEY = system.ReadInteger("POLICY", "DEFCONFKEY", 4);
  DebugMode = system.ReadBool("POLICY", "DEBUGMODE", false);
  MIMEType = system.ReadInteger("POLICY", "MIMETYPE", 1);
}

void ReadHyperlinks(const ini::TIniFile& system) {
  struct Link {
    std::string* target;
    const char* key;
    std::string fallback;
  };
  const Link links[] = {
      {&TransactionGatewayURL, "TTG", Page(true, kMakerSite, "/auth")},
      {&ebizURL, "EBIZ", Page(false, kMakerSite, "/")},
      {&FAQURL, "FAQ", Page(true, kMakerSite, "/auth/faq.html")},
      {&MerovanURL, "MEROVAN", Page(false, kMakerSite, "")},
      {&BonusURL, "BONUS", Page(false, kMakerSite, "/eclub/bp.htm")},
      {&ContactURL_E, "CONTACT_E", Page(false, kMakerSite, "/eng/contact.html")},
      {&ContactURL_C, "CONTACT_C", Page(false, kMakerSite, "/chi/contact.html")},
      {&HKSCSURL, "HKSCS", Page(false, kVendorSite, "/hk/hkscs/default.aspx")},
      {&DataExpURL_E, "DATAEXP_E", Page(true, kMakerSite, "/ebiz/uxr/index.jsp")},
      {&DataExpURL_C, "DATAEXP_C", Page(true, kMakerSite, "/ebiz/uxr/c_index.jsp")},
      {&IDCertRenewalURL, "IDCERTRENEW", Page(true, kAuthoritySite, "/renew/login.jsp")},
      {&IDCertCollectURL, "IDCERTCOLLECT", Page(true, kAuthoritySite, "/ack/logincol.jsp")},
  };
  for (const Link& link : links) {
    *link.target = AllTrim(system.ReadString("HYPERLINK", link.key, link.fallback));
  }
}

}  // namespace

void InitInternetRecord() {
  const ini::TIniFile machine(LOCAL_Merovan_Ini);
  const ini::TIniFile system(ServerPath + Global_Merovan_Ini);
  ReadEmailSettings(system, machine);
  // The policy keys and hyperlinks always come from "SEDIFSYS.INI"; when that is the system
  // configuration file already open (as after start-up), its one parse serves both.
  if (modules::MV_SameText(Global_Merovan_Ini, kSystemIni)) {
    ReadPolicy(system);
    ReadHyperlinks(system);
  } else {
    const ini::TIniFile policy(ServerPath + kSystemIni);
    ReadPolicy(policy);
    ReadHyperlinks(policy);
  }
}

void GetDNs() {
  const ini::TIniFile ini(ServerPath + kSystemIni);
  MVNCERTDN = ini.ReadString("POLICY", "MVNCERTDN", "");
  SO_MVNCERTDN = ini.ReadString("POLICY", "SO_MVNCERTDN", "");
  ECIC_MVNCERTDN = ini.ReadString("Policy", "ECICCERTDN", "");
  TTRS_MVNCERTDN = ini.ReadString("POLICY", "TTRS_MVNCERTDN", "");
  MVNCERTCADN = ini.ReadString("POLICY", "MVNCERTCADN", kIssuingAuthorityDN);
}

}  // namespace mv
