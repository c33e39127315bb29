#include "common/frame/library.h"

#include "common/frame/errors.h"
#include "common/frame/shared_state.h"
#include "modules/mv_codepage.h"

namespace mv {
namespace {

int startCount = 0;
uint16_t savedFpuWord = 0;

void ReleaseSharedState() {
  CheckDupTDECSub = {};
  LOCAL_Merovan_Ini.clear();
  Global_Merovan_Ini.clear();
  for (auto& table : BoxRec) table.clear();
  AryPkgInfo.clear();
  Advance = {};
  UpgradeRecord = {};
  DefinedRecord = {};
  UserRecord = {};
  for (std::string* text : {&TransactionGatewayURL,
                            &ebizURL,
                            &FAQURL,
                            &MerovanURL,
                            &BonusURL,
                            &HKSCSURL,
                            &ContactURL_E,
                            &ContactURL_C,
                            &DataExpURL_E,
                            &DataExpURL_C,
                            &IDCertRenewalURL,
                            &IDCertCollectURL,
                            &MVNCERTDN,
                            &SO_MVNCERTDN,
                            &ECIC_MVNCERTDN,
                            &TTRS_MVNCERTDN,
                            &MVNCERTCADN,
                            &ServerPath,
                            &BasePath,
                            &strChineseTable}) {
    text->clear();
  }
}

}  // namespace

void StartLibrary() {
  if (startCount > 0) {
    ++startCount;
    return;
  }
  wm_eAdvertise = sys::RegisterWindowMessage("eAdvertise");
  MV_OSVersionInfo = {};
  MV_OSVersionInfo.dwOSVersionInfoSize = sys::kOSVersionInfoSize;
  sys::GetVersionEx(MV_OSVersionInfo);
  MV_SysCodePage = static_cast<uint16_t>(StrToInt(modules::MV_GetCodepage(true)));
  MV_UsrCodePage = static_cast<uint16_t>(StrToInt(modules::MV_GetCodepage(false)));
  savedFpuWord = sys::GetFpuControlWord();
  startCount = 1;
}

void StopLibrary() {
  if (startCount == 0 || --startCount > 0) return;
  ReleaseSharedState();
}

int LibraryStartCount() {
  return startCount;
}

unsigned short SavedFpuControlWord() {
  return savedFpuWord;
}

}  // namespace mv
