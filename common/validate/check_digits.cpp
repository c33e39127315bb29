#include "common/validate/check_digits.h"

#include <algorithm>

namespace mv {

std::string mod36(int64_t n) {
  static constexpr char kDigits[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  if (n <= 0) return "0";
  std::string out;
  for (; n > 0; n /= 36) out += kDigits[n % 36];
  std::reverse(out.begin(), out.end());
  return out;
}

}  // namespace mv
