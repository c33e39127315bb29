// Windows: the lead-byte ranges the system gives for a code page (GetCPInfo).
#include <windows.h>

#include <map>
#include <memory>
#include <mutex>

#include "platform/codepage/codepage.h"
#include "platform/ini/ini_lead_bytes_p.h"

namespace mv::ini::detail {
namespace {

// The lead bytes of a double-byte code page; nothing for every other kind (UTF-8 reports none).
std::unique_ptr<TLeadBytes> QueryLeadBytes(int codePage) {
  CPINFO info{};
  if (!codepage::IsKnownCodePage(codePage) || !::GetCPInfo(static_cast<UINT>(codePage), &info) ||
      info.MaxCharSize < 2) {
    return nullptr;
  }
  auto lead = std::make_unique<TLeadBytes>();
  lead->fill(false);
  bool any = false;
  // Pairs of range ends, closed by a pair of zeros.
  for (size_t i = 0; i + 1 < MAX_LEADBYTES && info.LeadByte[i] != 0; i += 2) {
    for (unsigned b = info.LeadByte[i]; b <= info.LeadByte[i + 1]; ++b) {
      (*lead)[b] = true;
      any = true;
    }
  }
  return any ? std::move(lead) : nullptr;
}

}  // namespace

const TLeadBytes* LeadBytesOf(int codePage) {
  // Asked once per opened file; the answer for each code page is kept for the process.
  static std::mutex mutex;
  static std::map<int, std::unique_ptr<TLeadBytes>> known;
  std::lock_guard<std::mutex> lock(mutex);
  auto it = known.find(codePage);
  if (it == known.end()) it = known.emplace(codePage, QueryLeadBytes(codePage)).first;
  return it->second.get();
}

}  // namespace mv::ini::detail
