// The shared preset list with test links on a real user table: loading "PeriodPreset", order and
// duplicates, the notices the links get, locks and deletion, the link registry and Reload, and
// the link base's Reset and date condition.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "common/dates/date_range_setter.h"
#include "common/dates/ui_link.h"
#include "common/frame/shared_state.h"
#include "common/frame/string_list.h"
#include "common/settings/user_preference.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

using Log = std::vector<std::string>;

// A link that writes what it is told into a log shared by all links of a test.
struct TestLink : TUI_Link {
  TestLink(std::string name, Log& log) : name(std::move(name)), log(log) {}
  void UpdateUserDefined() override { log.push_back(name + ":update"); }
  void UpdateSelection(int index) override { Selection = Setter->GetDateParam(index); }
  void NotifyChanged() override {}
  void ShowSelection(TDateParam* param) override { shown = param; }
  void Reload() override { log.push_back(name + (Selection ? ":reload selected" : ":reload")); }
  std::string name;
  Log& log;
  TDateParam* shown = nullptr;
};

class DateRangeSetterTest : public TextFixture {
 protected:
  DateRangeSetterTest() {
    std::stringstream schema;
    schema << std::ifstream(MV_SYSUSER_SQL).rdbuf();
    Exec(schema.str());
    Exec("insert into sysuser (userid) values ('DEMO')");
    UserRecord.UserID = "DEMO";
  }
  ~DateRangeSetterTest() override {
    EXPECT_EQ(TDateRangeSetter::Current(), nullptr);  // every link gone: the list is freed
  }

  SqliteBackend db_{installation_.Dir()};
  Log log_;
};

TEST_F(DateRangeSetterTest, StoredListsAreSortedAndDamagedPiecesBecomeAllDates) {
  for (const auto& [stored, loaded] :
       std::vector<std::pair<const char*, const char*>>{{"", "-1D#1W#1M#3M#6M#1Y"},
                                                        {"2W##junk", "-1D#2W"},
                                                        {"1Y#2D# -3D ", "-3D#2D#1Y"},
                                                        {"#", ""}}) {
    SaveUserPreference("PeriodPreset", stored);
    TestLink link("A", log_);
    EXPECT_EQ(link.Setter->GetUserDefined(), loaded) << stored;
  }
  EXPECT_TRUE(log_.empty());  // the list is made before its first link is registered
}

TEST_F(DateRangeSetterTest, CreatingTellsEveryLinkEvenWhenThePresetExists) {
  TestLink a("A", log_), b("B", log_);
  TDateRangeSetter& setter = *a.Setter;
  TDateParam* threeMonths = setter.GetDateParam(3);
  EXPECT_EQ(setter.CreateDateParam(3, TimeByMonth, true), threeMonths);
  EXPECT_FALSE(threeMonths->Locked);
  EXPECT_EQ(log_, (Log{"A:update", "B:update"}));
  EXPECT_EQ(setter.IndexOfDateParam(setter.CreateDateParamFromString("2W")), 2);
  EXPECT_THROW(setter.CreateDateParam(1, static_cast<TTimeUnit>(4), false), std::out_of_range);
  // Added without a test: after its equal, and the last match is the one found.
  auto twin = std::make_unique<TDateParam>(TDateParam{2, TimeByWeek});
  TDateParam* second = twin.get();
  setter.AddDateParam(std::move(twin));
  EXPECT_EQ(setter.IndexOfDateParam(second), 3);
  EXPECT_EQ(setter.DateParamExist({2, TimeByWeek}), second);
  EXPECT_EQ(setter.DateParamExist({4, TimeByWeek}), nullptr);
}

TEST_F(DateRangeSetterTest, PresetsShownByThirdLinksAreLockedAgainstDeletion) {
  TestLink caller("A", log_), other("B", log_), dialog("C", log_);
  TDateRangeSetter& setter = *caller.Setter;
  caller.UpdateSelection(3);  // 3M
  other.UpdateSelection(1);   // 1W
  setter.CheckItemCanDelete(&dialog, &caller);
  setter.DeleteDateParamIndex(0);
  setter.DeleteDateParamIndex(1);
  EXPECT_EQ(setter.GetUserDefined(), "-1D#1W#1M#3M#6M#1Y");
  EXPECT_TRUE(log_.empty());
  setter.DeleteDateParamIndex(3);
  EXPECT_EQ(setter.GetUserDefined(), "-1D#1W#1M#6M#1Y");
  EXPECT_EQ(caller.Selection, nullptr);
  EXPECT_EQ(log_, (Log{"A:update", "B:update", "C:update"}));
  setter.CheckItemCanDelete(&other, nullptr);  // earlier locks are cleared
  EXPECT_FALSE(setter.GetDateParam(1)->Locked);
  EXPECT_THROW(setter.DeleteDateParamIndex(5), EListError);
  EXPECT_THROW(setter.GetDateParam(-1), EListError);
}

TEST_F(DateRangeSetterTest, TheListLivesAsLongAsItsLinksAndReloadReadsItAgainForEveryLink) {
  TDateRangeSetter::Reload();  // no list: nothing happens
  SaveUserPreference("PeriodPreset", "1W");
  auto first = std::make_unique<TestLink>("A", log_);
  first->Setter->CreateDateParam(2, TimeByDay, false);
  {
    TestLink second("B", log_);
    EXPECT_EQ(second.Setter, first->Setter);
  }
  EXPECT_EQ(first->Setter->UILinks(), (std::vector<TUI_Link*>{first.get()}));
  first.reset();
  TestLink a("A", log_), b("B", log_);  // unsaved changes are gone: read from the preferences
  EXPECT_EQ(a.Setter->GetUserDefined(), "1W");
  a.UpdateSelection(0);
  SaveUserPreference("PeriodPreset", "2D#-1D");
  TDateRangeSetter::Reload();
  EXPECT_EQ(a.Setter->GetUserDefined(), "-1D#2D");
  EXPECT_EQ(log_, (Log{"A:update", "A:update", "B:update", "A:update", "B:update", "A:reload",
                       "B:reload"}));
}

TEST_F(DateRangeSetterTest, ResetSelectsAllDatesAndTheDateConditionFollowsTheSelection) {
  SaveUserPreference("PeriodPreset", "1M");
  TestLink link("A", log_);
  const TDateTime march31 = DateOf(DayNumberOf({2024, 3, 31}), 0.5);
  EXPECT_EQ(link.GetBeforeDateSQL(march31), "");  // nothing selected
  link.UpdateSelection(0);
  EXPECT_EQ(link.GetBeforeDateSQL(march31), " CONVERT(datetime, '2024.02.29',102) ");
  link.SetEnabled(false);
  EXPECT_EQ(link.GetBeforeDateSQL(march31), "");
  link.Reset();
  EXPECT_EQ(link.Setter->GetUserDefined(), "-1D#1M");
  EXPECT_EQ(link.shown, link.Selection);
  EXPECT_EQ(link.Selection->Count, -1);
}

}  // namespace
}  // namespace mv::test
