// _MV_Totals on a SQLite database, linked with the modules package and the database layer only.
#include "modules/mv_totals.h"

#include <gtest/gtest.h>

#include "platform/db/dataset.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

using namespace mv::db;
using modules::_MV_Totals;

class TotalsTest : public ::testing::Test {
 protected:
  TotalsTest() {
    Exec("create table Doc (RefNo varchar(10) primary key, Amount float)");
    Exec("insert into Doc values ('A', 1.5), ('B', NULL), ('C', 3)");
    ds_.SetCommandText("select RefNo, Amount from Doc order by RefNo");
  }

  TempDir dir_;
  SqliteBackend db_{dir_};
  TMVADODataSet ds_;
};

// A forward-only cursor cannot go back: it sums from the current row on and stays at the end.
TEST_F(TotalsTest, ServerCursorSumsFromTheCurrentRowToTheEnd) {
  ds_.SetCursorLocation(clUseServer);
  ds_.Open();
  ds_.Next();
  EXPECT_EQ(_MV_Totals(ds_, "Amount"), 3);
  EXPECT_TRUE(ds_.Eof());
  EXPECT_EQ(_MV_Totals(ds_, "Amount"), 0);
}

// An edit not yet posted counts, since the first move posts it; the row keeps its place.
TEST_F(TotalsTest, PendingEditIsPostedAndCounted) {
  ds_.Open();
  ds_.SetRecNo(3);
  ds_.Edit();
  ds_.FieldByName("Amount").SetAsFloat(10);
  EXPECT_EQ(_MV_Totals(ds_, "Amount"), 11.5);
  EXPECT_EQ(ds_.State(), dsBrowse);
  EXPECT_EQ(ds_.RecNo(), 3);
}

}  // namespace
}  // namespace mv::test
