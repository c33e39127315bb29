// Check characters, base-36 numbers, the exported tables and the outside business-registration
// check, the latter against real sample libraries built beside the tests.
#include "common/validate/check_digits.h"

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

template <class Table>
std::string Joined(const Table& table) {
  std::string out;
  for (std::string_view entry : table) out += entry;
  return out;
}

std::string Members(const TCharSet& set) {
  std::string out;
  for (size_t c = 0; c < set.size(); ++c) out += set.test(c) ? std::string(1, char(c)) : "";
  return out;
}

TEST(CheckDigits, TablesDigitsAndLookups) {
  EXPECT_EQ(Members(Alphas) + Members(AllDigits), "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
  EXPECT_EQ(Members(EvenDigits) + Members(OddDigits), "0246813579");
  EXPECT_EQ(Joined(Letter36), "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  EXPECT_EQ(Joined(LetterY), "JLNPRTBDFH");
  EXPECT_TRUE(ChkDigits("0123456789") && ChkDigits(""));
  EXPECT_FALSE(ChkDigits("12 3") || ChkDigits("\xA4\x40"));
  EXPECT_EQ(Get36('Z'), 35);
  EXPECT_EQ(Get36('z') + Get36('-') + Get36('\xC1'), -3);
  EXPECT_EQ(Put36Y(3, LetterY, 9), 'P');
  for (auto [n, text] : {std::pair<int64_t, const char*>{35, "Z"},
                         {1295, "ZZ"},
                         {1296, "100"},
                         {123456, "2N9C"},
                         {-5, "0"}})
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
                         Row{"1", '6', 'Z'}, Row{"01", '7', 'T'}, Row{"", 'B', '0'},
                         // Lower case and punctuation keep their place but add nothing.
                         Row{"a2345678901-3", '3', 'C'}}) {
    EXPECT_EQ(Modulus11(row.s), row.mod11) << row.s;
    EXPECT_EQ(Modulus36(row.s), row.mod36) << row.s;
    if (row.s.size() < 13) continue;  // characters past the thirteenth are ignored
    EXPECT_EQ(Modulus11(row.s + "987"), row.mod11);
    EXPECT_EQ(Modulus36(row.s + "Z"), row.mod36);
  }
  for (int i = 0; i < 2000; ++i) EXPECT_NE(Modulus11(std::to_string(i * 7919)), '0');
}

// The sample libraries of this folder: accepting/ holds ChkBRN with its export, noexport/ one
// without it. Each logs its loads, calls and unloads.
class ChkBRNTest : public ::testing::Test {
 protected:
  ~ChkBRNTest() override { ServerPath = saved_; }
  std::string saved_ = ServerPath;
  TempDir dir_;
  ScopedEnv log_{"MV_CHKBRN_LOG", dir_.File("log")};
};

TEST_F(ChkBRNTest, TheLibraryAnswersForTheTrimmedNumberAndIsUnloaded) {
  ServerPath = CHKBRN_DIR "/accepting/";
  EXPECT_TRUE(ChkBRNDigit("  16 "));
  EXPECT_FALSE(ChkBRNDigit("17"));
  EXPECT_EQ(dir_.Read("log"), "loaded\nChkBRN 16\nunloaded\nloaded\nChkBRN 17\nunloaded\n");
}

TEST_F(ChkBRNTest, EveryNumberPassesWithoutTheLibraryOrItsExport) {
  ServerPath = dir_.path() + "/";
  EXPECT_TRUE(ChkBRNDigit("17"));
  ServerPath = CHKBRN_DIR "/noexport/";
  EXPECT_TRUE(ChkBRNDigit("17"));
  EXPECT_EQ(dir_.Read("log"), "loaded\nunloaded\n");
}

}  // namespace
}  // namespace mv::test
