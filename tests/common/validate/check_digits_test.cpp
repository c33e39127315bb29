// Check characters, base-36 numbers, the exported tables and the outside business-registration
// check, the latter against real sample libraries built beside the tests.
#include "common/validate/check_digits.h"

#include <gtest/gtest.h>

#include <string>

#include "common/frame/shared_state.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

std::string Members(const TCharSet& set) {
  std::string out;
  for (size_t c = 0; c < set.size(); ++c) {
    if (set.test(c)) out += static_cast<char>(c);
  }
  return out;
}

TEST(CheckTables, ValuesAndOrder) {
  EXPECT_EQ(Members(Alphas), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  EXPECT_EQ(Members(AllDigits), "0123456789");
  EXPECT_EQ(Members(EvenDigits), "02468");
  EXPECT_EQ(Members(OddDigits), "13579");
  std::string letters;
  for (std::string_view letter : Letter36) letters += letter;
  EXPECT_EQ(letters, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  std::string y;
  for (std::string_view letter : LetterY) y += letter;
  EXPECT_EQ(y, "JLNPRTBDFH");
  EXPECT_EQ(strChineseTable, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ(),-./=");
}

TEST(CheckDigits, DigitsOnlyAndLookups) {
  EXPECT_TRUE(ChkDigits("0123456789"));
  EXPECT_TRUE(ChkDigits(""));
  EXPECT_FALSE(ChkDigits("12 3"));
  EXPECT_FALSE(ChkDigits("\xA4\x40"));
  EXPECT_EQ(Get36('0'), 0);
  EXPECT_EQ(Get36('Z'), 35);
  EXPECT_EQ(Get36('z'), -1);
  EXPECT_EQ(Get36('-'), -1);
  EXPECT_EQ(Get36('\xC1'), -1);
  EXPECT_EQ(Put36Y(3, LetterY, 9), 'P');
  EXPECT_EQ(Put36Y(35, Letter36, 35), 'Z');
}

TEST(CheckDigits, Base36Numbers) {
  for (auto [n, text] : {std::pair<int64_t, const char*>{0, "0"},
                         {35, "Z"},
                         {36, "10"},
                         {1295, "ZZ"},
                         {1296, "100"},
                         {123456, "2N9C"},
                         {-5, "0"}}) {
    EXPECT_EQ(mod36(n), text) << n;
  }
}

TEST(CheckDigits, WorkedCheckCharacters) {
  struct Row {
    const char* s;
    char mod11, mod36;
  };
  for (const Row& row : {Row{"1234567890123", '3', 'X'}, Row{"ABC1234567890", '9', 'U'},
                         Row{"0000000000000", 'B', '0'}, Row{"0000000000001", '9', 'Z'}}) {
    EXPECT_EQ(Modulus11(row.s), row.mod11) << row.s;
    EXPECT_EQ(Modulus36(row.s), row.mod36) << row.s;
    // Characters past the thirteenth are ignored.
    EXPECT_EQ(Modulus11(std::string(row.s) + "987"), row.mod11);
    EXPECT_EQ(Modulus36(std::string(row.s) + "987"), row.mod36);
  }
}

TEST(CheckDigits, WeightsAnchoredAndOutsidersCountNothing) {
  // Modulus 11 anchors its weights at position 13: "1" alone stands at position 1, weight 5,
  // sum 5, check 11 - 5 = 6. Modulus 36: "1" at position 1 weighs 1: 36 - 1 = "Z".
  EXPECT_EQ(Modulus11("1"), '6');
  EXPECT_EQ(Modulus36("1"), 'Z');
  EXPECT_EQ(Modulus36("01"), 'T');  // even position weighs 7: 36 - 7 = 29
  EXPECT_EQ(Modulus11(""), 'B');
  EXPECT_EQ(Modulus36(""), '0');
  // Lower case and punctuation keep their place and weight but add nothing.
  EXPECT_EQ(Modulus11("a234567890123"), Modulus11("-234567890123"));
  EXPECT_EQ(Modulus11("a234567890123"), Modulus11("0234567890123"));
  EXPECT_EQ(Modulus36("1b34567890123"), Modulus36("1034567890123"));
  // "0" never comes out of modulus 11: every one of the first 1000 numbers has another letter.
  for (int i = 0; i < 1000; ++i) EXPECT_NE(Modulus11(std::to_string(i)), '0');
}

// The business-registration check against the sample libraries of this folder: "accepting" holds
// ChkBRN with its export, "noexport" one without it.
class ChkBRNTest : public ::testing::Test {
 protected:
  ~ChkBRNTest() override { ServerPath = saved_; }
  void UseFolder(const std::string& folder) { ServerPath = folder + "/"; }
  std::string Log() const { return dir_.Read("log"); }

  std::string saved_ = ServerPath;
  TempDir dir_;
  ScopedEnv log_{"MV_CHKBRN_LOG", dir_.File("log")};
};

TEST_F(ChkBRNTest, TheLibraryAnswersForTheTrimmedNumber) {
  UseFolder(CHKBRN_DIR "/accepting");
  EXPECT_TRUE(ChkBRNDigit("  16 "));
  EXPECT_FALSE(ChkBRNDigit("17"));
  EXPECT_FALSE(ChkBRNDigit(""));
  EXPECT_EQ(Log(),
            "loaded\nChkBRN 16\nunloaded\n"
            "loaded\nChkBRN 17\nunloaded\n"
            "loaded\nChkBRN \nunloaded\n");
}

TEST_F(ChkBRNTest, EveryNumberPassesWithoutTheLibraryOrItsExport) {
  UseFolder(dir_.path());
  EXPECT_TRUE(ChkBRNDigit("17"));
  UseFolder(CHKBRN_DIR "/noexport");
  EXPECT_TRUE(ChkBRNDigit("17"));
  EXPECT_EQ(Log(), "loaded\nunloaded\n");
}

}  // namespace
}  // namespace mv::test
