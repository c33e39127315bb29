// Internet, policy, hyperlink and certificate settings.
#include "common/frame/internet_settings.h"

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "tests/support/installation.h"

namespace mv {
namespace {

class InternetSettingsTest : public ::testing::Test {
 protected:
  void Load(const std::string& system, const std::string& machine = "") {
    install.WriteSystemIni(system);
    if (!machine.empty()) install.WriteMachineIni(machine);
    ServerPath = install.ServerFolder() + "/";
    Global_Merovan_Ini = "SEDIFSYS.INI";
    LOCAL_Merovan_Ini = "WIN.INI";
    InitInternetRecord();
    GetDNs();
  }

  test::TestInstallation install;
};

TEST_F(InternetSettingsTest, DefaultsWithoutAnySection) {
  Load("");
  EXPECT_EQ(Internet.SMTPPort, 25);
  EXPECT_EQ(Internet.POP3Port, 110);
  EXPECT_EQ(Internet.MDNRespTime, 0);
  EXPECT_EQ(Internet.SMTPHost, "");
  EXPECT_EQ(Internet.EDISubject, "");
  EXPECT_FALSE(Internet.LeaseLine);
  EXPECT_EQ(EncryptLDAPOption, 1);
  EXPECT_EQ(VerifyLDAPOption, 1);
  EXPECT_EQ(DEFINE_AUTH_KEY, 3);
  EXPECT_EQ(DEFINE_CONF_KEY, 4);
  EXPECT_FALSE(DebugMode);
  EXPECT_EQ(MIMEType, 1);
  EXPECT_EQ(TransactionGatewayURL.rfind("https://", 0), 0u);
  EXPECT_TRUE(TransactionGatewayURL.ends_with("/auth"));
  EXPECT_TRUE(ebizURL.starts_with("http://") && ebizURL.ends_with("/"));
  EXPECT_EQ(MerovanURL.find('/', 7), std::string::npos);  // no path
  EXPECT_TRUE(HKSCSURL.ends_with("/hk/hkscs/default.aspx"));
  EXPECT_TRUE(IDCertCollectURL.starts_with("https://") &&
              IDCertCollectURL.ends_with("/ack/logincol.jsp"));
  EXPECT_EQ(MVNCERTDN, "");
  EXPECT_TRUE(MVNCERTCADN.starts_with("c=HK, o=")) << MVNCERTCADN;
  EXPECT_NE(MVNCERTCADN.find(", ou=BRN "), std::string::npos);
  EXPECT_NE(MVNCERTCADN.find(", cn="), std::string::npos);
}

TEST_F(InternetSettingsTest, TextsAreTrimmedAndCutToFifty) {
  const std::string host(60, 'h');
  Load("[EMAIL_CONFIG]\nSMTPHost=\"  " + host +
       "  \"\nSMTPPort=2525\nPOP3Port=x\n"
       "MDNRespTime=30\nTTRS_MvnEmailAddr= ttrs@example.com\n"
       "[HYPERLINK]\nFAQ=\"  http://faq.example/  \"\n");
  EXPECT_EQ(Internet.SMTPHost, std::string(50, 'h'));
  EXPECT_EQ(Internet.SMTPPort, 2525);
  EXPECT_EQ(Internet.POP3Port, 110);
  EXPECT_EQ(Internet.MDNRespTime, 30);
  EXPECT_EQ(Internet.TTRS_MvnEmailAddr, "ttrs@example.com");
  EXPECT_EQ(FAQURL, "http://faq.example/");
}

TEST_F(InternetSettingsTest, ConnectionComesOnlyFromTheMachineFile) {
  Load("[MEROVAN_CONNECTION]\nRASProfile=FromSystem\nLeaseLine=1\n");
  EXPECT_EQ(Internet.RASProfile, "");
  EXPECT_FALSE(Internet.LeaseLine);
  Load("", "[MEROVAN_CONNECTION]\nRASProfile= Dial Up \nLeaseLine=1\n");
  EXPECT_EQ(Internet.RASProfile, "Dial Up");
  EXPECT_TRUE(Internet.LeaseLine);
}

TEST_F(InternetSettingsTest, PolicyKeysAreSpelledAsInTheFile) {
  Load(
      "[POLICY]\nVERIFYLDAPOption=7\nENCRYPTLDAPOption=0\nDEBUGMODE=1\nMIMETYPE=2\n"
      "DEFAUTHKEY=5\nDEFCONFKEY=6\n");
  EXPECT_EQ(VerifyLDAPOption, 1);
  EXPECT_EQ(EncryptLDAPOption, 0);
  EXPECT_TRUE(DebugMode);
  EXPECT_EQ(MIMEType, 2);
  EXPECT_EQ(DEFINE_AUTH_KEY, 5);
  EXPECT_EQ(DEFINE_CONF_KEY, 6);
  Load("[POLICY]\nVERFIYLDAPOption=7\n");
  EXPECT_EQ(VerifyLDAPOption, 7);
}

TEST_F(InternetSettingsTest, CertificateNamesKeepTheirBlanks) {
  Load(
      "[POLICY]\nMVNCERTDN=\" cn=A \"\nECIC_MVNCERTDN=wrong\nECICCERTDN=cn=ECIC\n"
      "SO_MVNCERTDN=cn=SO\nTTRS_MVNCERTDN=cn=TTRS\nMVNCERTCADN=cn=CA\n");
  EXPECT_EQ(MVNCERTDN, " cn=A ");
  EXPECT_EQ(ECIC_MVNCERTDN, "cn=ECIC");
  EXPECT_EQ(SO_MVNCERTDN, "cn=SO");
  EXPECT_EQ(TTRS_MVNCERTDN, "cn=TTRS");
  EXPECT_EQ(MVNCERTCADN, "cn=CA");
}

}  // namespace
}  // namespace mv
