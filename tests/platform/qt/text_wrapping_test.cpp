#include "platform/qt/text_wrapping.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QStringList>
#include <cmath>

#include "platform/qt/qt_font.h"

namespace mv::qt {
namespace {

const TextFont kFont{u"DejaVu Sans", 10};
using Lines = std::vector<std::u16string>;

// The width of a line as the reader sees it: blanks at its end do not show.
int Width(QString line) {
  while (!line.isEmpty() && line.back().isSpace()) line.chop(1);
  return static_cast<int>(std::ceil(QFontMetricsF(ToQFont(kFont)).horizontalAdvance(line)));
}

Lines Wrap(int width, const std::u16string& text) {
  Lines out;
  for (const QString& line :
       QString::fromStdU16String(TextWrapping(kFont, width, text)).split(QStringLiteral("\r\n")))
    out.push_back(line.toStdU16String());
  return out;
}

TEST(TextWrappingTest, MixedTextFitsEveryWidthAndLosesNothing) {
  const std::u16string text =
      u"Shipping advice 出貨通知 for order PO-2024-0815 已確認，請於三日內回覆 thank you.";
  for (int width = 10; width <= 420; width += 13) {
    std::u16string joined;
    for (const std::u16string& line : Wrap(width, text)) {
      joined += line;
      if (line.size() > 1) {
        EXPECT_LE(Width(QString::fromStdU16String(line)), width);
      }
    }
    EXPECT_EQ(joined, text) << width;
  }
  EXPECT_EQ(Wrap(10000, text).size(), 1u);
}

TEST(TextWrappingTest, BreaksAfterBlanksThenBetweenCjkCharactersThenInsideWords) {
  EXPECT_EQ(Wrap(Width("alpha beta gamma") - 1, u"alpha beta gamma delta"),
            (Lines{u"alpha beta ", u"gamma delta"}));
  // Blanks before the break stay on the line and do not count toward its width.
  EXPECT_EQ(Wrap(Width("alpha beta"), u"alpha beta   gamma"), (Lines{u"alpha beta   ", u"gamma"}));
  EXPECT_EQ(Wrap(Width("電子貿易"), u"電子貿易文件交換服務"),
            (Lines{u"電子貿易", u"文件交換", u"服務"}));
  const Lines lines = Wrap(Width("Super"), u"a Supercalifragilistic");
  ASSERT_GE(lines.size(), 3u);
  EXPECT_EQ(lines[0], u"a ");
  EXPECT_EQ(lines[1], u"Super");
  // Too narrow for anything: one character a line, a surrogate pair or accented letter whole.
  EXPECT_EQ(Wrap(0, u"a\U00020000e\u0301"), (Lines{u"a", u"\U00020000", u"e\u0301"}));
}

TEST(TextWrappingTest, KeepsLineBreaksAsCrLf) {
  EXPECT_EQ(modules::MV_TextWrapping(kFont, 500, u"one\ntwo\r\n\r\nthree\r"),
            u"one\r\ntwo\r\n\r\nthree\r\n");
  EXPECT_EQ(TextWrapping(kFont, 500, u""), u"");
}

}  // namespace
}  // namespace mv::qt
