#include "common/frame/shared_state.h"

#include "common/frame/library.h"

namespace mv {

std::string Global_Merovan_Ini;
std::string LOCAL_Merovan_Ini;
std::string ServerPath;
std::string BasePath;

TUserRecord UserRecord;
TAdvance Advance;
TUpgradeRecord UpgradeRecord;
TDefinedRecord DefinedRecord;
TDefinedRecord DetRecord;
TColorRecord ColorRecord;
TInternet Internet;
TCheckDupTDECSub CheckDupTDECSub;
std::string Version;

std::string MVNCERTDN, SO_MVNCERTDN, ECIC_MVNCERTDN, TTRS_MVNCERTDN, MVNCERTCADN;
std::string TransactionGatewayURL, ebizURL, FAQURL, MerovanURL, BonusURL, HKSCSURL, ContactURL_E,
    ContactURL_C, DataExpURL_E, DataExpURL_C, IDCertRenewalURL, IDCertCollectURL;

int32_t EncryptLDAPOption = 0, VerifyLDAPOption = 0, MIMEType = 0;
int32_t DEFINE_AUTH_KEY = 0, DEFINE_CONF_KEY = 0;
bool DebugMode = false;
uint8_t LanguageMode = 0;
uint8_t SysLanguageMode = 0;
int32_t iInboxRefresh = 0, iSentboxRefresh = 0;

const std::array<std::string, 3> BoxSectionName = {"InboxMsgType", "OutboxMsgType",
                                                   "SentboxMsgType"};
std::array<std::vector<TMType>, 3> BoxRec;
std::array<std::unique_ptr<TStringList>, 3> BoxMsgType;

int32_t giMaxRecords = 0;
bool gbValidateImpXLSCSV = false;

std::unique_ptr<TStringList> Addon, AddonToolBar, Service, AddonMenu, InboxMsgType, InboxSrvType,
    OutboxMsgType, SentBoxMsgType, InboxAction, InboxActList;
std::unique_ptr<TStringList> C_InboxMsgType, C_InboxSrvType, C_OutboxMsgType, C_SentBoxMsgType;

std::vector<TPackInfo> AryPkgInfo;
mv_service_entry InitService = nullptr;
int32_t CurrentService = -1;
modules::ModuleHandle hDLL = 0, hLumoraDLL = 0;
mv_host_proc SetMenuStatus = nullptr, SetAddonToolBarStatus = nullptr, ChangeFolder = nullptr,
             RefreshFolder = nullptr;
bool InitStatus = false;
TMethodCallback RefreshMain, ViewResponseMsg;
void* TempCompositeReport = nullptr;
bool AddonDone = false, PrintBtnIsClicked = false;
uint16_t AddonResult = 0;
int32_t iReadTimeOut = -1, iWriteTimeOut = -1;
int32_t FRetryAccess = 0;
std::string strChineseTable = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ(),-./=";
bool gvsSelectPath = false;

uint32_t wm_eAdvertise = 0;
sys::TOSVersionInfo MV_OSVersionInfo;
uint16_t MV_SysCodePage = 0;
uint16_t MV_UsrCodePage = 0;

namespace {

// Starts the library when the shared library is loaded and stops it when it is unloaded. It is
// defined after the shared state in this file, so the state is built before the start-up runs
// and destroyed only after the shut-down.
struct LoaderHook {
  LoaderHook() { StartLibrary(); }
  ~LoaderHook() { StopLibrary(); }
} loaderHook;

}  // namespace

}  // namespace mv
