#include "platform/qt/text_wrapping.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QStringList>
#include <cmath>

#include "platform/qt/qt_font.h"

namespace mv::qt {
namespace {

const FontSpec kFont{u"DejaVu Sans", 10};

QStringList Lines(const std::u16string& wrapped) {
  return QString::fromStdU16String(wrapped).split(QStringLiteral("\r\n"));
}

qreal Advance(const QString& text) {
  QString visible = text;
  while (!visible.isEmpty() && visible.back().isSpace()) visible.chop(1);
  return QFontMetricsF(ToQFont(kFont)).horizontalAdvance(visible);
}

std::vector<std::u16string> Wrap(int width, const QString& text) {
  std::vector<std::u16string> out;
  for (const QString& line : Lines(TextWrapping(kFont, width, text.toStdU16String())))
    out.push_back(line.toStdU16String());
  return out;
}

using Strings = std::vector<std::u16string>;

TEST(TextWrappingTest, MixedTextFitsEveryWidthAndLosesNothing) {
  const QString text = QStringLiteral(
      "Shipping advice 出貨通知 for order PO-2024-0815 已確認，請於三日內回覆 thank you.");
  for (int width = 10; width <= 420; width += 13) {
    const QStringList lines = Lines(TextWrapping(kFont, width, text.toStdU16String()));
    EXPECT_EQ(lines.join(QString()), text) << width;
    for (const QString& line : lines) {
      EXPECT_FALSE(line.isEmpty()) << width;
      if (line.size() > 1) {
        EXPECT_LE(Advance(line), width) << line.toStdString();
      }
    }
  }
  EXPECT_EQ(Lines(TextWrapping(kFont, 10000, text.toStdU16String())).size(), 1);
}

TEST(TextWrappingTest, BreaksAfterBlanksWhenWordsFit) {
  const int width = static_cast<int>(Advance(QStringLiteral("alpha beta gamma"))) - 1;
  EXPECT_EQ(Wrap(width, QStringLiteral("alpha beta gamma delta")),
            (Strings{u"alpha beta ", u"gamma delta"}));
  // Blanks before the break stay on the line and do not count toward its width.
  const int tight = static_cast<int>(std::ceil(Advance(QStringLiteral("alpha beta"))));
  EXPECT_EQ(Wrap(tight, QStringLiteral("alpha beta   gamma")),
            (Strings{u"alpha beta   ", u"gamma"}));
}

TEST(TextWrappingTest, BreaksBetweenCjkCharactersAndInsideLongWords) {
  const int cjkWidth = static_cast<int>(std::ceil(Advance(QStringLiteral("電子貿易"))));
  EXPECT_EQ(Wrap(cjkWidth, QStringLiteral("電子貿易文件交換服務")),
            (Strings{u"電子貿易", u"文件交換", u"服務"}));
  const int width = static_cast<int>(std::ceil(Advance(QStringLiteral("Super"))));
  const Strings lines = Wrap(width, QStringLiteral("a Supercalifragilistic"));
  ASSERT_GE(lines.size(), 3u);
  EXPECT_EQ(lines[0], u"a ");
  EXPECT_EQ(lines[1], u"Super");
}

TEST(TextWrappingTest, NarrowWidthKeepsCharactersWhole) {
  // A surrogate pair and a letter with a combining accent are one character each.
  EXPECT_EQ(Wrap(0, QString::fromStdU16String(u"a\U00020000e\u0301")),
            (Strings{u"a", u"\U00020000", u"e\u0301"}));
}

TEST(TextWrappingTest, KeepsLineBreaksAsCrLf) {
  EXPECT_EQ(modules::MV_TextWrapping(kFont, 500, u"one\ntwo\r\n\r\nthree\r"),
            u"one\r\ntwo\r\n\r\nthree\r\n");
  EXPECT_EQ(TextWrapping(kFont, 500, u""), u"");
}

}  // namespace
}  // namespace mv::qt
