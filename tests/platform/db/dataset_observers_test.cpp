// Observers of a dataset on a real SQLite file: what they are told, when they are not, and what
// happens when links or the dataset go away in the middle of a notification.
#include <gtest/gtest.h>

#include <optional>

#include "platform/db/dataset.h"
#include "platform/db/db_error.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::db {
namespace {

using Events = std::vector<std::pair<TDataSetEvent, int>>;

class DataSetObserversTest : public testing::Test {
 protected:
  DataSetObserversTest() {
    test::Exec("create table Inbox (RefNo varchar(20) primary key, Subject nvarchar(40))");
    test::Exec("insert into Inbox values ('R1', 'a'), ('R2', 'b'), ('R3', 'c')");
    ds_.emplace();
    ds_->SetCommandText("select RefNo, Subject from Inbox order by RefNo");
  }
  // A link that writes every event into `events`.
  TDataSetLink Record(Events& events) {
    return TDataSetLink(*ds_, [&events](TMVADODataSet&, const TDataSetChange& change) {
      events.emplace_back(change.Event, change.RecNo);
    });
  }

  test::TempDir dir_;
  test::SqliteBackend backend_{dir_};
  std::optional<TMVADODataSet> ds_;
};

TEST_F(DataSetObserversTest, EveryChangeIsToldOnceAndNoChangeIsNotTold) {
  Events events;
  TDataSetLink link = Record(events);
  int callerOpened = 0;
  ds_->SetAfterOpen([&](TMVADODataSet&) { ++callerOpened; });
  TMVADODataSet& ds = *ds_;
  ds.Open();
  ds.Next();
  ds.SetRecNo(2);  // already there
  ds.FieldByName("Subject").SetVisible(false);
  ds.FieldByName("Subject").SetVisible(false);
  ds.FieldByName("Subject").SetDisplayLabel("主旨");
  ds.FieldByName("Subject").SetIndex(0);
  ds.FieldByName("Subject").SetIndex(0);
  ds.Edit();
  ds.FieldByName("Subject").SetAsString("x");
  ds.Post();
  ds.Append();
  ds.FieldByName("RefNo").SetAsString("R4");
  ds.Post();
  ds.SetRecNo(1);
  ds.Delete();
  ds.Refresh();
  ds.Close();
  ds.Close();
  const Events expected = {{deOpened, 1},        {deRecordMoved, 2},   {deLayoutChanged, 2},
                           {deLayoutChanged, 2}, {deLayoutChanged, 2}, {deRecordChanged, 2},
                           {deRecordChanged, 2}, {deRecordChanged, 2}, {deRecordChanged, 2},
                           {deRecordChanged, 2}, {deRowInserted, 4},   {deRecordMoved, 1},
                           {deRowDeleted, 1},    {deRefreshed, 1},     {deClosed, 0}};
  EXPECT_EQ(events, expected);
  EXPECT_EQ(callerOpened, 1);  // the caller's own event stays its own
}

TEST_F(DataSetObserversTest, DisabledControlsNestAndCatchUpOnceWhenAllAreEnabled) {
  Events events;
  TDataSetLink link = Record(events);
  TMVADODataSet& ds = *ds_;
  ds.EnableControls();  // none pending: harmless
  EXPECT_FALSE(ds.ControlsDisabled());
  ds.DisableControls();
  ds.DisableControls();
  int callerOpened = 0;
  ds.SetAfterOpen([&](TMVADODataSet&) { ++callerOpened; });
  ds.Open();
  ds.Next();
  ds.FieldByName("RefNo").SetVisible(false);
  ds.EnableControls();
  EXPECT_TRUE(ds.ControlsDisabled());
  EXPECT_TRUE(events.empty());
  ds.EnableControls();
  ds.EnableControls();
  EXPECT_FALSE(ds.ControlsDisabled());
  EXPECT_EQ(events, (Events{{deDataSetChanged, 2}}));
  EXPECT_EQ(callerOpened, 1);
  ds.Next();
  EXPECT_EQ(events.back(), std::make_pair(deRecordMoved, 3));
}

TEST_F(DataSetObserversTest, LinksRemovedWhileTellingAreSkippedAndTheDataSetMayGoFirst) {
  Events first, third;
  TDataSetLink thirdLink;
  TDataSetLink firstLink(*ds_, [&](TMVADODataSet&, const TDataSetChange& change) {
    first.emplace_back(change.Event, change.RecNo);
    thirdLink.Reset();
    if (change.Event == deRecordMoved) ds_.reset();  // the dataset is destroyed mid-way
  });
  TDataSetLink selfRemoving;
  int selfCalls = 0;
  selfRemoving = TDataSetLink(*ds_, [&](TMVADODataSet&, const TDataSetChange&) {
    ++selfCalls;
    selfRemoving.Reset();  // the running listener stays alive until it returns
  });
  thirdLink = Record(third);
  ds_->Open();
  EXPECT_TRUE(third.empty());
  EXPECT_EQ(selfCalls, 1);
  EXPECT_EQ(firstLink.DataSet(), &*ds_);
  TDataSetLink late = Record(third);
  ds_->Next();
  EXPECT_FALSE(ds_.has_value());
  EXPECT_EQ(first, (Events{{deOpened, 1}, {deRecordMoved, 2}, {deDestroying, 0}}));
  EXPECT_EQ(third, (Events{{deDestroying, 0}}));  // the late link hears only of the end
  EXPECT_EQ(firstLink.DataSet(), nullptr);
  EXPECT_EQ(late.DataSet(), nullptr);
  late.Reset();
}

TEST_F(DataSetObserversTest, FailedRefreshTellsClosedAndServerLocateTellsOneMove) {
  Events events;
  TDataSetLink link = Record(events);
  TMVADODataSet& ds = *ds_;
  ds.SetCursorLocation(clUseServer);
  ds.Open();
  EXPECT_TRUE(ds.Locate("RefNo", Variant("R3")));
  EXPECT_EQ(events, (Events{{deOpened, 1}, {deRecordMoved, 3}}));
  ds.Close();
  ds.SetCursorLocation(clUseClient);
  ds.Open();
  test::Exec("drop table Inbox");
  EXPECT_THROW(ds.Refresh(), EDatabaseError);
  EXPECT_FALSE(ds.Active());
  EXPECT_EQ(events.back(), std::make_pair(deClosed, 0));
}

TEST_F(DataSetObserversTest, ValueAtReadsAnyRowWithoutMovingAndShowsTheEdit) {
  TMVADODataSet& ds = *ds_;
  ds.Open();
  TField& subject = ds.FieldByName("Subject");
  TField& twice = ds.AddCalculatedField("Twice", ftWideString, [](TMVADODataSet& d) {
    return Variant(d.FieldByName("Subject").AsWideString() +
                   d.FieldByName("Subject").AsWideString());
  });
  Events events;
  TDataSetLink link = Record(events);
  ds.SetRecNo(2);
  ds.Edit();
  subject.SetAsString("edited");
  events.clear();
  EXPECT_EQ(subject.ValueAt(3).AsString(), "c");
  EXPECT_EQ(subject.ValueAt(2).AsString(), "edited");
  EXPECT_EQ(twice.ValueAt(1).AsString(), "aa");
  EXPECT_EQ(twice.Value().AsString(), "editededited");  // the peek ended with the read
  EXPECT_TRUE(subject.ValueAt(0).IsNull());
  EXPECT_TRUE(subject.ValueAt(4).IsNull());
  EXPECT_EQ(ds.RecNo(), 2);
  EXPECT_EQ(ds.State(), dsEdit);
  EXPECT_TRUE(events.empty());
  ds.Cancel();
  ds.Close();
  ds.SetCursorLocation(clUseServer);
  ds.Open();
  ds.Next();
  EXPECT_TRUE(ds.FieldByName("Subject").ValueAt(1).IsNull());  // gone by: forward only
  EXPECT_EQ(ds.FieldByName("Subject").ValueAt(2).AsString(), "b");
}

}  // namespace
}  // namespace mv::db
