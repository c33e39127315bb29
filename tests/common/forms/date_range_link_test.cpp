// The period combo box of a list screen on a real QComboBox and a real user table: what it shows
// without a stored choice, the choice kept across closing and reopening a screen, the stored
// forms with the condition switched off, and what the program's own refills of the list do not
// count as a choice.
#include <gtest/gtest.h>

#include "common/dates/date_range_setter.h"
#include "common/settings/user_preference.h"
#include "tests/common/forms/date_range_forms_fixture.h"

namespace mv::test {
namespace {

using LinkTest = DateRangeFormsTest;

TEST_F(LinkTest, NoStoredChoiceShowsAllDatesAndNoCondition) {
  ListScreen screen("Inbox");
  ASSERT_EQ(screen.combo->count(), 6);
  EXPECT_EQ(screen.combo->currentText(), "[All]");
  EXPECT_TRUE(screen.link->Enabled);
  EXPECT_EQ(screen.link->GetBeforeDateSQL(March31()), "");
  EXPECT_EQ(screen.choices, 0);  // filling the list is no choice of the user
  screen.window.reset();
  EXPECT_EQ(GetUserPreference("PeriodInbox"), "-1D");
}

TEST_F(LinkTest, AChoiceSurvivesClosingAndReopeningTheScreen) {
  {
    ListScreen screen("Inbox");
    screen.Choose(3);
    EXPECT_EQ(screen.combo->currentText(), "Last 3 Months");
    EXPECT_EQ(screen.choices, 3);  // the screen's own handler runs after the link's
    EXPECT_EQ(screen.link->GetBeforeDateSQL(March31()), " CONVERT(datetime, '2023.12.31',102) ");
  }
  EXPECT_EQ(GetUserPreference("PeriodInbox"), "3M");
  ListScreen again("Inbox");
  EXPECT_EQ(again.combo->currentText(), "Last 3 Months");
  EXPECT_EQ(again.link->GetBeforeDateSQL(March31()), " CONVERT(datetime, '2023.12.31',102) ");
  ListScreen other("Outbox");  // every screen keeps its own choice
  EXPECT_EQ(other.combo->currentText(), "[All]");
}

TEST_F(LinkTest, ALinkMadeDisabledKeepsItsConditionOffUntilTheUserChooses) {
  {
    ListScreen untouched("Sent", false);
    EXPECT_FALSE(untouched.combo->isEnabled());
    EXPECT_FALSE(untouched.button->isEnabled());
    EXPECT_EQ(untouched.combo->currentText(), "[All]");
  }
  EXPECT_EQ(GetUserPreference("PeriodSent"), "-1D#NU");

  SaveUserPreference("PeriodSent", "1W#NU");
  ListScreen screen("Sent");  // the stored choice switches it off, made enabled or not
  EXPECT_FALSE(screen.link->Enabled);
  EXPECT_FALSE(screen.combo->isEnabled());
  EXPECT_EQ(screen.combo->currentText(), "Last 1 Week");
  EXPECT_EQ(screen.link->GetBeforeDateSQL(March31()), "");
  screen.combo->setEnabled(true);  // the screen lets the user choose again
  screen.Choose(2);
  EXPECT_TRUE(screen.link->Enabled);
  EXPECT_TRUE(screen.button->isEnabled());
  EXPECT_EQ(screen.link->GetBeforeDateSQL(March31()), " CONVERT(datetime, '2024.02.29',102) ");
}

TEST_F(LinkTest, StoredChoicesAreReadPieceByPiece) {
  struct Case {
    const char* stored;
    const char* shown;
    bool enabled;
    const char* saved;
  };
  for (const Case& c :
       {Case{"3M#", "Last 3 Months", true, "3M"}, Case{"1W#nu", "Last 1 Week", true, "1W"},
        Case{" 6M # NU ", "Last 6 Months", false, "6M#NU"},
        Case{"#NU", "", false, "#NU"},                    // no preset: none shown or stored
        Case{"2D#NU#3M", "Last 2 Days", false, "2D#NU"},  // later pieces unread
        Case{"junk", "[All]", true, "-1D"}}) {
    SaveUserPreference("PeriodX", c.stored);
    TDateRangeSetter::Reload();
    {
      ListScreen screen("X", false);
      EXPECT_EQ(screen.combo->currentText().toStdString(), c.shown) << c.stored;
      EXPECT_EQ(screen.link->Enabled, c.enabled) << c.stored;
    }
    EXPECT_EQ(GetUserPreference("PeriodX"), c.saved) << c.stored;
  }
}

TEST_F(LinkTest, ChangesOfTheSharedListRefillEveryComboWithoutChoosing) {
  ListScreen a("A"), b("B");
  a.Choose(3);
  b.Choose(1);
  const int choicesA = a.choices, choicesB = b.choices;
  TDateRangeSetter& setter = *a.link->Setter;
  setter.CreateDateParam(2, TimeByWeek, false);
  EXPECT_EQ(a.combo->count(), 7);
  EXPECT_EQ(a.combo->currentText(), "Last 3 Months");
  EXPECT_EQ(b.combo->itemText(2), "Last 2 Weeks");
  setter.DeleteDateParamIndex(setter.IndexOfDateParam(a.link->Selection));
  EXPECT_EQ(a.link->Selection, nullptr);
  EXPECT_EQ(a.combo->currentIndex(), -1);  // nothing is shown rather than a preset not chosen
  EXPECT_EQ(b.combo->currentText(), "Last 1 Week");
  EXPECT_EQ(a.choices, choicesA);
  EXPECT_EQ(b.choices, choicesB);
  EXPECT_EQ(a.link->GetBeforeDateSQL(March31()), "");
}

TEST_F(LinkTest, AButtonThatGoesFirstIsLetGo) {
  ListScreen screen("A", true, true);
  delete screen.button;
  EXPECT_EQ(screen.link->ConfigTrigger, nullptr);
  screen.link->SetEnabled(false);
  EXPECT_FALSE(screen.combo->isEnabled());
}

}  // namespace
}  // namespace mv::test
