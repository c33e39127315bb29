// Check digits and base-36 numbers.
#pragma once

#include <cstdint>
#include <string>

namespace mv {

// `n` written in base 36 (digits 0-9, then A-Z, most significant first); a negative number
// counts as 0, so the result is never empty ("0" for 0, "Z" for 35, "10" for 36).
std::string mod36(int64_t n);

}  // namespace mv
