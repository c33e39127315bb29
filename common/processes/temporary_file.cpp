#include "common/processes/temporary_file.h"

#include <ctime>

#include "common/validate/check_digits.h"
#include "platform/files/new_file.h"
#include "platform/files/paths.h"

namespace mv {
namespace {

constexpr int kMostAttempts = 1000;

// `n` in base 36, left-padded with "0" to `width` characters.
std::string Base36(int n, size_t width) {
  std::string digits = mod36(n);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

std::string BaseNameNow(int attempt) {
  // The library runs on one thread, so the shared result of std::localtime is safe to read.
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  if (local == nullptr) return TemporaryBaseName(1, 1, 0, 0, 0, attempt);
  return TemporaryBaseName(local->tm_mon + 1, local->tm_mday, local->tm_hour, local->tm_min,
                           local->tm_sec, attempt);
}

}  // namespace

std::string TemporaryBaseName(int month, int day, int hour, int minute, int second, int attempt) {
  return Base36(month, 1) + Base36(day, 1) + Base36(hour, 1) + Base36(minute * 60 + second, 3) +
         Base36(attempt, 2);
}

int32_t GetTemporaryFile(const std::string& folder, const std::string& extension,
                         std::string& name) {
  const std::string dir = files::IncludeTrailingDelimiter(folder);
  for (int attempt = 1; attempt <= kMostAttempts; ++attempt) {
    const std::string base = BaseNameNow(attempt);
    name = dir + base + extension;
    if (!files::BaseNameTaken(dir, base) && files::CreateNewFile(name)) return 0;
  }
  return -1;
}

}  // namespace mv
