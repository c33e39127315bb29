// The library's dataset helpers on a SQLite database: the read and write preparations, ConfirmSave
// and Totals.
#include <gtest/gtest.h>

#include "common/datasets/apply_modes.h"
#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "common/text/message_dialogs.h"
#include "common/text/str_utils.h"
#include "platform/db/dataset.h"
#include "platform/db/db_error.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

using namespace mv::db;
using namespace mv::dialogs;

class DatasetsTest : public TextFixture {
 protected:
  DatasetsTest() {
    Exec("create table Doc (RefNo varchar(10), Amount float)");
    Exec("insert into Doc values ('A', 1.5), ('B', NULL), ('C', 3)");
    LangChanger().SetLanguage(kLangEnglish);
    WriteCatalogue("2002=Save %s\n2003=Do you want to save the changes to this %s?\n");
    ds_.SetCommandText("select RefNo, Amount from Doc order by RefNo");
  }
  ~DatasetsTest() override { iReadTimeOut = iWriteTimeOut = -1; }

  TempDir dir_;
  SqliteBackend db_{dir_};
  TMVADODataSet ds_;
};

TEST_F(DatasetsTest, PreparationsSetCursorLockAndTimeOut) {
  iReadTimeOut = 7;
  iWriteTimeOut = 9;
  ApplyRead(ds_);
  EXPECT_EQ(ds_.CursorLocation(), clUseClient);
  EXPECT_TRUE(ds_.ReadOnly());
  EXPECT_EQ(ds_.CommandTimeout(), 7);
  ApplyWrite(ds_);
  EXPECT_EQ(ds_.LockType(), ltPessimistic);
  EXPECT_EQ(ds_.CommandTimeout(), 9);
  ApplyWriteWoLck(ds_);
  EXPECT_EQ(ds_.LockType(), ltOptimistic);
  ApplyBatchWrite(ds_);
  EXPECT_EQ(ds_.LockType(), ltBatchOptimistic);
  // A report counts its rows and pages back, but changes none.
  ApplyReport(ds_);
  EXPECT_EQ(ds_.CommandTimeout(), 7);
  ds_.Open();
  EXPECT_EQ(ds_.RecordCount(), 3);
  EXPECT_THROW(ds_.Edit(), EDatabaseError);
  ds_.SetRecNo(3);
  ds_.First();
  EXPECT_EQ(ds_.FieldByName("RefNo").AsString(), "A");
}

// Totals over a client cursor: every row, NULL as 0, the current row kept.
TEST_F(DatasetsTest, TotalsSumsEveryRowAndKeepsTheCurrentOne) {
  EXPECT_EQ(Totals(ds_, "Amount"), 0);  // closed
  ds_.Open();
  ds_.Next();
  EXPECT_EQ(Totals(ds_, "amount"), 4.5);
  EXPECT_EQ(ds_.RecNo(), 2);
  EXPECT_THROW(Totals(ds_, "RefNo"), EVariantError);
  EXPECT_THROW(Totals(ds_, "Nope"), EDatabaseError);
}

// Nothing is asked of a closed or browsing dataset; an edit is posted on Yes, an insert cancelled
// on No.
TEST_F(DatasetsTest, ConfirmSaveAsksOnlyWhileEditing) {
  ConfirmSave("x", ds_);
  ApplyWrite(ds_);
  ds_.Open();
  ConfirmSave("x", ds_);
  EXPECT_TRUE(dialogs_.Requests().empty());
  ds_.Edit();
  ds_.FieldByName("Amount").SetAsFloat(10);
  ConfirmSave("SALES invoice", ds_);
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].caption, u"Save SALES invoice");
  EXPECT_EQ(dialogs_.Requests()[0].kind, mtConfirmation);
  ds_.Close();
  ds_.Open();
  EXPECT_EQ(ds_.FieldByName("Amount").AsFloat(), 10);  // A, read again

  ds_.Insert();
  ds_.FieldByName("RefNo").SetAsString("D");
  dialogs_.QueueAnswer(mbNo);
  ConfirmSave("SALES invoice", ds_);
  EXPECT_EQ(ds_.State(), dsBrowse);
  EXPECT_EQ(ds_.RecordCount(), 3);
}

}  // namespace
}  // namespace mv::test
