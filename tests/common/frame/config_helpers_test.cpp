// Running numbers, grids and tuples over the system configuration file.
#include "common/frame/config_helpers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "common/frame/shared_state.h"
#include "tests/common/processes/helper_process.h"
#include "tests/support/installation.h"

namespace mv {
namespace {

class ConfigHelpersTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ServerPath = install.ServerFolder() + "/";
    Global_Merovan_Ini = "SEDIFSYS.INI";
  }
  std::string Ini() const { return install.Dir().Read("client/server/SEDIFSYS.INI"); }

  test::TestInstallation install;
};

TEST_F(ConfigHelpersTest, TdecCounterIssuesPaddedBase36AndWritesBack) {
  EXPECT_EQ(GetIniSeq("TDEC", "Seq"), "0002");
  EXPECT_EQ(GetIniSeq("tdec", "Seq"), "0003");
  EXPECT_EQ(Ini(), "[TDEC]\r\nSeq=3\r\n");
  const std::pair<const char*, const char*> cases[] = {
      {"34", "000Z"}, {"1679615", "10000"}, {"-7", "0000"}};
  for (const auto& [held, issued] : cases) {
    install.WriteSystemIni(std::string("[TDEC]\nSeq=") + held + "\n");
    EXPECT_EQ(GetIniSeq("TDEC", "Seq"), issued) << held;
  }
}

TEST_F(ConfigHelpersTest, OtherSectionsGiveTheKeyTextOrErrorIni) {
  install.WriteSystemIni("[Codes]\nPrefix=HK\n");
  EXPECT_EQ(GetIniSeq("Codes", "Prefix"), "HK");
  EXPECT_EQ(GetIniSeq("Codes", "Missing"), "ERRORINI");
  EXPECT_EQ(GetIniSeq("Codes", ""), "ERRORINI");
  EXPECT_EQ(Ini(), "[Codes]\nPrefix=HK\n");  // nothing written
}

TEST_F(ConfigHelpersTest, IntegerValuesAndSectionLists) {
  install.WriteSystemIni("[N]\nA=12\nB=x\n");
  EXPECT_EQ(GetIniIntegerValue("N", "B"), 0);
  SetIniIntegerValue("N", "C", -4);
  EXPECT_EQ(GetIniIntegerValue("n", "c"), -4);
  TStringList list{"old"};
  LoadStringListFromIni("N", list);
  EXPECT_EQ(list, (TStringList{"A=12", "B=x", "C=-4"}));
}

// Four processes issue 60 numbers each from one counter: each number once, none skipped, and each
// process's numbers rising.
TEST_F(ConfigHelpersTest, RunningNumbersOfFourProcessesAreDistinctAndGapFree) {
  install.WriteSystemIni("[TDEC]\nSeq=34\n");
  const std::vector<std::string> issued =
      test::RunFourTogether(install.Dir(), PROCESS_HELPER " seq " + install.ServerFolder());
  ASSERT_EQ(issued.size(), 4u * 60);
  for (size_t first = 0; first < issued.size(); first += 60) {
    EXPECT_TRUE(std::is_sorted(issued.begin() + first, issued.begin() + first + 60)) << first;
  }
  std::vector<std::string> all = issued;
  std::sort(all.begin(), all.end());
  EXPECT_EQ(all.front(), "000Z");  // 35
  EXPECT_EQ(all.back(), "007M");   // 34 + 240 = 274
  EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end());
  EXPECT_EQ(GetIniIntegerValue("TDEC", "Seq"), 274);
}

// Four processes count their own key of one file up 60 times: no write loses another's.
TEST_F(ConfigHelpersTest, WritersOfOtherKeysKeepEachOthersChanges) {
  install.WriteSystemIni("; counters\n[Counts]\n");
  std::vector<std::unique_ptr<test::HelperProcess>> writers;
  for (const char* key : {"A", "B", "C", "D"}) {
    writers.push_back(std::make_unique<test::HelperProcess>(PROCESS_HELPER " count " +
                                                            install.ServerFolder() + " " + key +
                                                            " " + install.Dir().File("go")));
  }
  install.Dir().Write("go", "");
  for (auto& writer : writers) EXPECT_EQ(writer->Wait(), 0);
  for (const char* key : {"A", "B", "C", "D"}) EXPECT_EQ(GetIniIntegerValue("Counts", key), 60);
  EXPECT_EQ(Ini().substr(0, 12), "; counters\r\n");
}

TEST(TupleTest, NamesValuesAndLists) {
  EXPECT_EQ(TupleValue("KEY=VALUE=X"), "VALUE=X");
  EXPECT_EQ(TupleValue("plain"), "");
  TStringList list{"a=1", "b", "c=", "=d"};
  EXPECT_EQ(*StringListNames(list), (TStringList{"a", "b", "c", ""}));
  GetStringListValue(list);
  EXPECT_EQ(list, (TStringList{"1", "b", "", "d"}));
}

template <typename Text>
struct FakeGrid : TGridCells<Text> {
  void SetCell(int column, int row, const Text& text) override { cells[{column, row}] = text; }
  void SetRowCount(int count) override { rows = count; }
  std::map<std::pair<int, int>, Text> cells;
  int rows = -1;
};

TEST(GetIniGrdTest, EveryItemNeedsItsComma) {
  FakeGrid<std::string> grid;
  GetIniGrd("A,B", TStringList{"first"}, 2, 1, grid);
  EXPECT_EQ(grid.cells,
            (std::map<std::pair<int, int>, std::string>{{{2, 1}, "A"}, {{3, 1}, "first"}}));
  EXPECT_EQ(grid.rows, 1);

  FakeGrid<std::u16string> wide;
  GetIniGrd(u"報關,,", std::vector<std::u16string>{u"x", u"y"}, 0, 0, wide);
  EXPECT_EQ(wide.cells, (std::map<std::pair<int, int>, std::u16string>{
                            {{0, 0}, u"報關"}, {{1, 0}, u"x"}, {{0, 1}, u""}, {{1, 1}, u"y"}}));
  EXPECT_EQ(wide.rows, 2);
}

}  // namespace
}  // namespace mv
