// Big5 bytes of the characters the string tests use, and a fixture that reads narrow text as Big5.
// 兀 (A4 61) and 乙 (A4 41) differ only in a second byte that looks like "a" / "A"; the second
// bytes of 許 (B3 5C) and 弋 (A4 7C) look like "\" and "|".
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/support/temp_dir.h"

namespace mv::modules::big5 {

inline const std::string kZhong = "\xA4\xA4";       // 中
inline const std::string kWen = "\xA4\xE5";         // 文
inline const std::string kWu = "\xA4\x61";          // 兀
inline const std::string kYi = "\xA4\x41";          // 乙
inline const std::string kXu = "\xB3\x5C";          // 許
inline const std::string kYiBar = "\xA4\x7C";       // 弋
inline const std::string kFullA = "\xA2\xCF";       // Ａ
inline const std::string kFullSmallA = "\xA2\xE9";  // ａ

class Big5Test : public ::testing::Test {
 private:
  test::ScopedEnv codePage_{"MV_CODEPAGE", "950"};
};

}  // namespace mv::modules::big5
