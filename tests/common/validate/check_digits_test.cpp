// Check characters, base-36 numbers and the outside business-registration check, the latter
// against real sample libraries built beside the tests.
#include "common/validate/check_digits.h"

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

TEST(CheckDigits, DigitsAndBase36) {
  EXPECT_TRUE(ChkDigits("0123456789") && ChkDigits(""));
  EXPECT_FALSE(ChkDigits("12 3") || ChkDigits("\xA4\x40"));
  EXPECT_EQ(Get36('Z'), 35);
  EXPECT_EQ(Get36('z') + Get36('-') + Get36('\xC1'), -3);
  for (auto [n, text] : {std::pair<int64_t, const char*>{35, "Z"}, {1296, "100"}, {-5, "0"}})
    EXPECT_EQ(mod36(n), text) << n;
}

TEST(CheckDigits, CheckCharacters) {
  struct Row {
    std::string s;
    char mod11, mod36;
  };
  for (const Row& row : {Row{"1234567890123", '3', 'X'}, Row{"ABC1234567890", '9', 'U'},
                         Row{"0000000000000", 'B', '0'}, Row{"0000000000001", '9', 'Z'},
                         // Weights stay anchored: "1" stands at position 1 (weights 5 and 1).
                         Row{"01", '7', 'T'},
                         // Lower case and punctuation keep their place but add nothing.
                         Row{"a2345678901-3", '3', 'C'}}) {
    EXPECT_EQ(Modulus11(row.s), row.mod11) << row.s;
    EXPECT_EQ(Modulus36(row.s), row.mod36) << row.s;
  }
  // Characters past the thirteenth are ignored.
  EXPECT_EQ(Modulus11("1234567890123987"), '3');
  EXPECT_EQ(Modulus36("ABC1234567890Z"), 'U');
  for (int i = 0; i < 2000; ++i) EXPECT_NE(Modulus11(std::to_string(i * 7919)), '0');
}

// accepting/ holds the sample ChkBRN with its export, noexport/ one without it; each logs its
// loads, calls and unloads.
TEST(ChkBRN, TheLibraryAnswersForTheTrimmedNumberAndEveryNumberPassesWithoutIt) {
  const std::string saved = ServerPath;
  TempDir dir;
  ScopedEnv log("MV_CHKBRN_LOG", dir.File("log"));
  ServerPath = CHKBRN_DIR "/accepting/";
  EXPECT_TRUE(ChkBRNDigit("  16 "));
  EXPECT_FALSE(ChkBRNDigit("17"));
  ServerPath = dir.path() + "/";
  EXPECT_TRUE(ChkBRNDigit("17"));
  ServerPath = CHKBRN_DIR "/noexport/";
  EXPECT_TRUE(ChkBRNDigit("17"));
  EXPECT_EQ(dir.Read("log"),
            "loaded\nChkBRN 16\nunloaded\nloaded\nChkBRN 17\nunloaded\nloaded\nunloaded\n");
  ServerPath = saved;
}

}  // namespace
}  // namespace mv::test
