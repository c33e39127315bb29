#include "common/text/error_texts.h"

#include "common/frame/errors.h"
#include "common/text/lang_changer.h"
#include "common/text/text_resources.h"

namespace mv {
namespace {

struct TFileErrorText {
  int code;
  const char* english;
  const char* chinese;  // UTF-8
};

constexpr TFileErrorText kFileErrors[] = {
    {102, "Error in opening an opened data file", "開啟已開啟的資料檔案時發生錯誤"},
    {103, "Error in closing data file", "關閉資料檔案時發生錯誤"},
    {104, "Error in reading data from an output file", "從輸出檔案讀取資料時發生錯誤"},
    {105, "Error in writing data to an input file", "書寫資料到輸入檔案時發生錯誤"},
};

constexpr int kFirstPortError = 5000;
constexpr int kOtherError = 4999;
constexpr int kPlainError = 99;

}  // namespace

std::string ErrorMsg(const std::exception& error) {
  if (const auto* io = dynamic_cast<const EInOutError*>(&error)) {
    for (const TFileErrorText& text : kFileErrors) {
      if (text.code == io->ErrorCode) return LangChanger().CStr(text.english, text.chinese);
    }
  }
  return error.what();
}

std::string get_comm_err_str(int code) {
  TLangChanger& lang = LangChanger();
  if (code >= kFirstPortError) {
    const modules::TFormatArg text[] = {LoadCStrW(code)};
    return ShownNarrow(
        lang.Language(),
        modules::MV_WideFormat(lang.CStrW("Com Port Error: %s", "連接埠錯誤: %s"), text));
  }
  if (code == kPlainError) return LoadCStr(kPlainError);
  const modules::TFormatArg number[] = {int64_t{code}};
  return LoadCStr(kOtherError, number);
}

}  // namespace mv
