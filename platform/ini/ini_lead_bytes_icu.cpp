#include "platform/ini/ini_lead_bytes_p.h"

#include <unicode/ucnv.h>

#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/codepage/codepage.h"

namespace mv::ini::detail {
namespace {

// Asks ICU for the lead bytes of a multi-byte table converter; nothing for every other kind.
std::optional<TLeadBytes> QueryLeadBytes(int codePage) {
  std::string name = codepage::ConverterName(codePage);
  if (name.empty()) return std::nullopt;
  UErrorCode status = U_ZERO_ERROR;
  UConverter* converter = ucnv_open(name.c_str(), &status);
  if (U_FAILURE(status)) return std::nullopt;
  std::optional<TLeadBytes> result;
  if (ucnv_getType(converter) == UCNV_MBCS) {
    UBool starters[256] = {};
    ucnv_getStarters(converter, starters, &status);
    if (U_SUCCESS(status)) {
      TLeadBytes lead{};
      bool any = false;
      for (size_t b = 0; b < lead.size(); ++b) {
        lead[b] = starters[b] != 0;
        any = any || lead[b];
      }
      if (any) result = lead;
    }
  }
  ucnv_close(converter);
  return result;
}

}  // namespace

const TLeadBytes* LeadBytesOf(int codePage) {
  // Asked once per opened file; the answer for each code page is kept for the process.
  static std::mutex mutex;
  static std::map<int, std::unique_ptr<TLeadBytes>> known;
  std::lock_guard<std::mutex> lock(mutex);
  auto it = known.find(codePage);
  if (it == known.end()) {
    std::optional<TLeadBytes> lead = QueryLeadBytes(codePage);
    it = known.emplace(codePage, lead ? std::make_unique<TLeadBytes>(*lead) : nullptr).first;
  }
  return it->second.get();
}

}  // namespace mv::ini::detail
