// The text format of the user's settings column: line ends read and written, key look-up, and
// the edits that keep every other line as it was.
#include <gtest/gtest.h>

#include <stdexcept>

#include "common/settings/preference_text.h"

namespace mv::test {
namespace {

using Lines = std::vector<std::u16string>;

TEST(PreferenceText, ReadsEveryLineEndAndWritesCrLf) {
  EXPECT_EQ(TPreferenceText(u"a=1\rb=2\nc=3\r\nd=4").Lines(),
            (Lines{u"a=1", u"b=2", u"c=3", u"d=4"}));
  EXPECT_EQ(TPreferenceText(u"a=1\n\r\n\rb=2\r\r\n").Lines(),
            (Lines{u"a=1", u"", u"", u"b=2", u""}));
  EXPECT_TRUE(TPreferenceText(u"").Lines().empty());
  EXPECT_EQ(TPreferenceText(u"x=1\nnote\n\ny=2").Text(), u"x=1\r\nnote\r\n\r\ny=2\r\n");
}

TEST(PreferenceText, KeysMatchWithoutCaseAndTheFirstLineCounts) {
  const TPreferenceText text(
      u"plain line\r\nGrid=a=b,c\r\nperiodinbox=3M\r\nPERIODINBOX=1W\r\n=empty key\r\nÄrger=ä");
  EXPECT_EQ(text.Value(u"PeriodInbox"), u"3M");
  EXPECT_EQ(text.Value(u"grid"), u"a=b,c");
  EXPECT_EQ(text.Value(u"ärger"), u"ä");
  EXPECT_EQ(text.Value(u""), u"empty key");
  EXPECT_EQ(text.Value(u"plain line"), u"");
  // Letters outside the basic plane fold too (Deseret capital and small long I).
  EXPECT_EQ(TPreferenceText(u"\U00010400=x").Value(u"\U00010428"), u"x");
}

TEST(PreferenceText, SettingReplacesInPlaceOrAppends) {
  TPreferenceText text(u"a=1\nnote\nB=2\nc=3\nb=old");
  text.SetValue(u"b", u"x=y");
  text.SetValue(u"new", u"4");
  EXPECT_EQ(text.Text(), u"a=1\r\nnote\r\nb=x=y\r\nc=3\r\nb=old\r\nnew=4\r\n");
}

TEST(PreferenceText, AnEmptyValueRemovesEveryLineOfTheKeyAndLineBreaksAreRefused) {
  TPreferenceText text(u"a=1\nB=2\nc=3\nb=older");
  text.SetValue(u"b", u"");
  EXPECT_EQ(text.Text(), u"a=1\r\nc=3\r\n");
  // A key or value that would read back as other entries is refused, and nothing changes.
  EXPECT_THROW(text.SetValue(u"a=b", u"1"), std::invalid_argument);
  EXPECT_THROW(text.SetValue(u"a\nb", u"1"), std::invalid_argument);
  EXPECT_THROW(text.SetValue(u"a", u"1\r\nevil=2"), std::invalid_argument);
  EXPECT_EQ(text.Value(u"b"), u"");
}

}  // namespace
}  // namespace mv::test
