// Message keys and types: SEGX on both text forms, and GetMsgType on a copy of the demo
// database's mailbox tables.
#include "common/services/msg_types.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/frame/errors.h"
#include "common/services/msg_fields.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "platform/db/db_error.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/temp_dir.h"

namespace mv {
namespace {

std::string Segx(std::string_view s, int n, char sep = ',') {
  std::string result = "unset";
  SEGX(sep, s, n, result);
  return result;
}

std::u16string SegxW(std::u16string_view s, int n) {
  std::u16string result = u"unset";
  SEGX('|', s, n, result);
  return result;
}

TEST(SegxTest, FieldsCountFromOneAndMissingOnesAreEmpty) {
  EXPECT_EQ(Segx("a,b,c", 1), "a");
  EXPECT_EQ(Segx("a,b,c", 3), "c");
  EXPECT_EQ(Segx("a,b,c", 4), "");
  EXPECT_EQ(Segx("a,b,c", 0), "");
  EXPECT_EQ(Segx("a,b,c", -1), "");
  EXPECT_EQ(Segx("whole", 1), "whole");
  EXPECT_EQ(Segx("whole", 2), "");
  EXPECT_EQ(Segx(",,x,", 3), "x");
  EXPECT_EQ(Segx(",,x,", 4), "");
  EXPECT_EQ(SegxW(u"報單|貨物|", 2), u"貨物");
  EXPECT_EQ(SegxW(u"報單", 1), u"報單");
  EXPECT_EQ(SegxW(u"報單", 2), u"");
}

TEST(SegxTest, EachStepKeepsAtMost255CharactersBehindTheSeparator) {
  const std::string near(254, 'n');
  EXPECT_EQ(Segx("a," + near + ",z", 3), "");  // z starts at the 256th character: cut away
  EXPECT_EQ(Segx("a," + near.substr(1) + ",z", 3), "z");
  EXPECT_EQ(Segx("a," + std::string(300, 'x'), 2), std::string(255, 'x'));
  const std::u16string wide(254, u'貨');
  EXPECT_EQ(SegxW(u"a|" + wide + u"|z", 3), u"");
  EXPECT_EQ(SegxW(u"a|" + wide.substr(1) + u"|z", 3), u"z");
  // Every step cuts what the step before kept, so nothing past the first 255 characters behind
  // the first separator is reached, however short the fields.
  std::string chain;
  for (int i = 0; i < 40; ++i) chain += std::string(20, 'f') + ",";
  EXPECT_EQ(Segx(chain, 13), std::string(20, 'f'));
  EXPECT_EQ(Segx(chain, 14), "fff");
  EXPECT_EQ(Segx(chain + "end", 41), "");
}

// Day numbers of the demo's stored messages (a tenth of a second is about 1.16e-6 days).
constexpr double kTenth = 1.0 / 864000;

class GetMsgTypeTest : public ::testing::Test {
 protected:
  GetMsgTypeTest() {
    std::filesystem::copy_file(MV_DEMO_DATABASE_FILE, dir_.File("mail.db"));
    db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("mail.db"));
  }
  ~GetMsgTypeTest() override { db::CloseConnection("DBMAIN"); }

  double Stored(const std::string& table, const std::string& refNo) {
    db::TMVADODataSet rows;
    rows.SetCommandText("select DateTime from " + table + " where RefNo = :r");
    rows.Parameters()[0].Value = refNo;
    rows.Open();
    return rows.Fields(0).AsFloat();
  }
  std::string TypeOf(const std::string& table, double when, const std::string& refNo,
                     const std::string& sender, int mode = 1) {
    std::string result = "unset";
    GetMsgType(table, MakeMsgKey(when, refNo, sender), mode, result);
    return result;
  }

  test::TempDir dir_;
};

TEST_F(GetMsgTypeTest, StoredMessagesMatchWithinATenthOfASecond) {
  const double t = Stored("Inbox", "TD24000124");
  EXPECT_EQ(TypeOf("Inbox", t, "TD24000124", "hkgovt"), "HKCTRA");
  EXPECT_EQ(TypeOf("Inbox", t + 0.9 * kTenth, "TD24000124", "hkgovt"), "HKCTRA");
  EXPECT_EQ(TypeOf("Inbox", t - 0.9 * kTenth, "TD24000124", "hkgovt"), "HKCTRA");
  EXPECT_EQ(TypeOf("Inbox", t + 1.1 * kTenth, "TD24000124", "hkgovt"), "");
  EXPECT_EQ(TypeOf("Inbox", t - 1.1 * kTenth, "TD24000124", "hkgovt"), "");
  EXPECT_EQ(TypeOf("Inbox", t, "TD24000124", "HKGOVT"), "");
  EXPECT_EQ(TypeOf("Sentbox", Stored("Sentbox", "TD24000124"), "TD24000124", "MVDEMO01", 2),
            "HKTDAM\x01MVDEMO01\x01hkgovt");
}

TEST_F(GetMsgTypeTest, FirstRowInTheWindowWinsAndALaterRowEndsTheWalk) {
  test::Exec(
      "insert into Inbox (RefNo, DateTime, Sender, MType, Recipient) values "
      "('R1', 100.0, 'S', 'EARLY', 'me'), ('R1', 100.0 + 0.5 / 864000, 'S', 'LATE', 'me'),"
      "('R1', 200.0, 'S', 'NEXT', 'me')");
  EXPECT_EQ(TypeOf("Inbox", 100.0 + 0.4 / 864000, "R1", "S"), "EARLY");
  EXPECT_EQ(TypeOf("Inbox", 150.0, "R1", "S"), "");
  EXPECT_EQ(TypeOf("Inbox", 200.0, "R1", "S", 2), "NEXT\x01S\x01me");
  // Rows returned out of date order: the later row ends the walk before the matching one.
  test::Exec("create table Unsorted (RefNo, DateTime, Sender, MType, Recipient)");
  test::Exec(
      "insert into Unsorted values ('R', 9.0, 'S', 'LATER', 'me'), ('R', 5.0, 'S', 'X', 'me')");
  EXPECT_EQ(TypeOf("Unsorted", 9.0, "R", "S"), "LATER");
  EXPECT_EQ(TypeOf("Unsorted", 5.0, "R", "S"), "");
}

TEST_F(GetMsgTypeTest, QuotesInTheKeyAreValuesNotSql) {
  test::Exec(
      "insert into Outbox (RefNo, DateTime, Sender, MType, Recipient) values "
      "('O''NEIL-1', 300.25, 'a''b', 'HKTDEC', 'hkgovt')");
  EXPECT_EQ(TypeOf("Outbox", 300.25, "O'NEIL-1", "a'b"), "HKTDEC");
  EXPECT_EQ(TypeOf("Outbox", 300.25, "x' or '1'='1", "a'b"), "");
  EXPECT_EQ(TypeOf("Outbox", 300.25, "'; drop table Outbox; --", "a'b"), "");
  EXPECT_EQ(TypeOf("Outbox", 300.25, "O'NEIL-1", "a'b"), "HKTDEC");
}

TEST_F(GetMsgTypeTest, BadKeysAndTablesGoToTheCaller) {
  std::string result = "old";
  EXPECT_THROW(GetMsgType("Inbox", "yesterday\x01R\x01S", 1, result), EConvertError);
  EXPECT_EQ(result, "");
  EXPECT_THROW(GetMsgType("Inbox", "", 1, result), EConvertError);
  EXPECT_THROW(GetMsgType("NoSuchBox", "1.5\x01R\x01S", 1, result), db::EDatabaseError);
  GetMsgType("Inbox", " 45601.5 \x01TD24000124", 1, result);  // no sender: nothing found
  EXPECT_EQ(result, "");
}

}  // namespace
}  // namespace mv
