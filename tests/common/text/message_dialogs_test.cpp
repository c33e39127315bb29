#include <gtest/gtest.h>

#include "common/frame/errors.h"
#include "common/text/lang_changer.h"
#include "common/text/message_dialogs.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

using namespace mv::dialogs;
using MessageDialogsTest = TextFixture;

TEST_F(MessageDialogsTest, BoxesCarryKindTextsButtonsAndDefault) {
  Msg("Title", Big5("草稿"), mtWarning);
  const DialogRequest& shown = dialogs_.Requests()[0];
  EXPECT_EQ(shown.text, u"草稿");
  EXPECT_EQ(shown.kind, mtWarning);
  EXPECT_EQ(shown.buttons, TMsgDlgButtons{mbOK});

  // The default button: OK, else Yes, else Retry, else the first; no buttons at all: OK.
  EXPECT_EQ(MsgDlg("c", "t", mtInformation, {mbNo, mbYes, mbCancel}), mbYes);
  EXPECT_EQ(MsgDlg("c", u"t", mtInformation, {mbAbort, mbRetry, mbIgnore}), mbRetry);
  EXPECT_EQ(MsgDlg("c", "t", mtCustom, {mbNo, mbCancel}), mbNo);
  EXPECT_EQ(MsgDlg("c", "t", mtCustom, {}), mbOK);
  dialogs_.QueueAnswer(mbCancel);
  EXPECT_EQ(ConfirmDlg("c", u"t", {mbOK, mbCancel}), mbCancel);
  EXPECT_EQ(dialogs_.Requests().back().kind, mtConfirmation);

  dialogs_.QueueAnswer(mbNo);
  EXPECT_FALSE(Confirm("c", "t"));
  EXPECT_TRUE(Confirm("c", u"t"));
  EXPECT_EQ(dialogs_.Requests().back().buttons, (TMsgDlgButtons{mbYes, mbNo}));
}

TEST_F(MessageDialogsTest, DialogsAreMadeUnshownAndMsgFormScalesToTheScreen) {
  dialogs_.SetScreenDpi(120);
  auto made = CreateMsgDialog("c", "t", mtInformation, {mbOK});
  auto scaled = MsgForm("c", u"t", mtInformation, {mbOK});
  EXPECT_TRUE(dialogs_.Requests().empty());
  auto& plain = dynamic_cast<TProviderMsgDialog&>(*made);
  auto& form = dynamic_cast<TProviderMsgDialog&>(*scaled);
  EXPECT_EQ(plain.ScaleNumerator(), plain.ScaleDenominator());
  EXPECT_EQ(form.ScaleNumerator(), 120);
  EXPECT_EQ(form.ScaleDenominator(), 96);
  EXPECT_EQ(form.ShowModal(), mbOK);
  EXPECT_EQ(dialogs_.Requests().size(), 1u);
}

TEST_F(MessageDialogsTest, InputQueryKeepsNarrowFieldsInTheCodePage) {
  std::string narrow = Big5("草稿");
  dialogs_.QueueInput(false);
  EXPECT_FALSE(MyInputQuery("c", "p", narrow, 10));
  EXPECT_EQ(narrow, Big5("草稿"));
  EXPECT_EQ(dialogs_.InputRequests()[0].value, u"草稿");
  EXPECT_EQ(dialogs_.InputRequests()[0].maxLength, 10);

  dialogs_.QueueInput(true, u"已核對X");  // 7 bytes in Big5: cut after the 2nd character
  EXPECT_TRUE(MyInputQuery("c", "p", narrow, 5));
  EXPECT_EQ(narrow, Big5("已核"));

  std::u16string wide;
  dialogs_.QueueInput(true, u"删除ab");  // "删" is not in Big5
  EXPECT_TRUE(MyInputQuery("c", u"p", wide, 0, true));
  EXPECT_EQ(wide, u"?除ab");
  dialogs_.QueueInput(true, u"删除ab");
  EXPECT_TRUE(MyInputQuery("c", u"p", wide, 4, false));
  EXPECT_EQ(wide, u"删除ab");
}

TEST_F(MessageDialogsTest, ConfirmDeleteAsksWithTextsAndAbortsQuietlyWhenRefused) {
  WriteCatalogue(
      "2000=Delete %s\n"
      "2001=Are you sure you want to delete this %s?\n");
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_NO_THROW(ConfirmDelete("SALES invoice"));
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].caption, u"Delete SALES invoice");
  EXPECT_EQ(dialogs_.Requests()[0].text, u"Are you sure you want to delete this Sales Invoice?");
  dialogs_.QueueAnswer(mbNo);
  EXPECT_THROW(ConfirmDelete("SALES invoice"), EAbort);
}

}  // namespace
}  // namespace mv::test
