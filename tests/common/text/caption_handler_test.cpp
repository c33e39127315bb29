#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "common/frame/shared_state.h"
#include "common/text/caption_handler.h"
#include "common/text/lang_changer.h"
#include "common/text/user_language.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

// A form with the controls "btnOK" and "lblName".
class FakeForm : public dialogs::TCaptionTarget {
 public:
  bool SetCaption(std::string_view name, const std::u16string& caption) override {
    if (name != "btnOK" && name != "lblName") return false;
    captions[std::string(name)] = caption;
    ++sets;
    return true;
  }
  std::map<std::string, std::u16string> captions;
  int sets = 0;
};

using CaptionHandlerTest = TextFixture;

TEST_F(CaptionHandlerTest, ShowsCaptionsInItsLanguageAndFollowsTheSwitch) {
  FakeForm form, other;
  LangChanger().SetLanguage(kLangEnglish);
  TCaptionHandler handler(form);
  handler.AddCaption("btnOK", u"OK", u"確定");
  handler.AddCaption("lblName", u"Name", u"名稱");
  handler.AddCaption("missing", u"Gone", u"沒有");
  handler.AddCaption("lblName", u"User name", u"用戶名稱");  // replaces the pair
  EXPECT_EQ(form.captions["lblName"], u"User name");

  auto second = std::make_unique<TCaptionHandler>(other);
  second->AddCaption("btnOK", u"OK", u"確定");
  handler.ChineseTogether();  // reaches every registered form
  EXPECT_EQ(handler.Language(), kLangChinese);
  EXPECT_EQ(LangChanger().Language(), kLangChinese);
  EXPECT_EQ(form.captions["lblName"], u"用戶名稱");
  EXPECT_EQ(other.captions["btnOK"], u"確定");

  EXPECT_EQ(handler.ApplyLanguage(kLangSimplified), 2);  // this form only; "missing" skipped
  EXPECT_EQ(form.captions["lblName"], u"用户名称");
  EXPECT_EQ(other.captions["btnOK"], u"確定");

  second.reset();  // a destroyed handler is no longer told
  const int otherSets = other.sets;
  LangChanger().EnglishTogether();
  EXPECT_EQ(form.captions["btnOK"], u"OK");
  EXPECT_EQ(other.sets, otherSets);
}

// The user's language reaches the captions only when it differs from the handler's and is 0 or
// 1; LanguageMode takes it in every case.
TEST_F(CaptionHandlerTest, UpdateUserLanguageModeSwitchesOnlyOnChange) {
  FakeForm form;
  TCaptionHandler handler(form);
  handler.AddCaption("btnOK", u"OK", u"確定");
  const int shownOnce = form.sets;

  UserRecord.Language = 0;  // same as the handler's: nothing is shown again
  UpdateUserLanguageMode(handler);
  EXPECT_EQ(form.sets, shownOnce);

  UserRecord.Language = 1;
  UpdateUserLanguageMode(handler);
  EXPECT_EQ(LanguageMode, 1);
  EXPECT_EQ(handler.Language(), kLangEnglish);
  EXPECT_EQ(form.captions["btnOK"], u"OK");

  UserRecord.Language = 3;
  UpdateUserLanguageMode(handler);
  EXPECT_EQ(LanguageMode, 3);
  EXPECT_EQ(handler.Language(), kLangEnglish);
  EXPECT_EQ(LangChanger().Language(), kLangEnglish);
}

}  // namespace
}  // namespace mv::test
