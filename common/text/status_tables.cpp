#include "common/text/status_tables.h"

#include "platform/codepage/codepage.h"

namespace mv {
namespace {

struct TStatusName {
  char letter;
  const char* english;
  const char* chinese;  // UTF-8
};

constexpr TStatusName kStatusNames[] = {
    {'A', "Authorized", "已授權"},
    {'D', "Government received", "傳送至政府"},
    {'E', "Error", "錯誤"},
    {'F', "Draft", "草稿"},
    {'G', "Government received", "傳送至政府"},
    {'I', "Prepared (file interface)", "備妥(文檔載入)"},
    {'M', "Error (file interface)", "錯誤(文檔載入)"},
    {'P', "Prepared", "備妥"},
    {'Q', "Queued for sending", "輪候"},
    {'S', "Sending", "傳送中"},
    {'T', "Merovan processing", "Merovan在處理中"},
    {'V', "Verified", "已核對"},
    {'Y', "Query Outstanding", "查詢待覆"},
};

constexpr TStatusName kUnknown = {'?', "Unknown", "不詳"};

const TStatusName& Find(char status) {
  if (status >= 'a' && status <= 'z') status = static_cast<char>(status - 'a' + 'A');
  for (const TStatusName& name : kStatusNames) {
    if (name.letter == status) return name;
  }
  return kUnknown;
}

}  // namespace

std::string StatusDescription(char status) {
  return Find(status).english;
}

std::string StatusDesc_C(char status) {
  return codepage::FromWide(StatusDesc_CW(status), codepage::UserCodePage());
}

std::u16string StatusDesc_CW(char status) {
  return codepage::WideFromUtf8(Find(status).chinese);
}

}  // namespace mv
