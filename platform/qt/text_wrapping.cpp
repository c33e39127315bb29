#include "platform/qt/text_wrapping.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QStringList>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <vector>

#include "platform/qt/qt_font.h"
#include "platform/qt/qt_text.h"

namespace mv::qt {
namespace {

// Decides whether a piece of text fits the width; blanks at its end do not count.
class LineFit {
 public:
  LineFit(const QFont& font, int width) : metrics_(font), width_(width) {}
  bool operator()(QString line) const {
    while (!line.isEmpty() && line.back().isSpace()) line.chop(1);
    return metrics_.horizontalAdvance(line) <= width_;
  }

 private:
  QFontMetricsF metrics_;
  qreal width_;
};

// The positions of `paragraph` after which a piece may end, in order, the last being its length.
std::vector<qsizetype> Boundaries(const QString& paragraph,
                                  QTextBoundaryFinder::BoundaryType type) {
  QTextBoundaryFinder finder(type, paragraph);
  std::vector<qsizetype> out;
  for (qsizetype pos = finder.toNextBoundary(); pos > 0; pos = finder.toNextBoundary())
    out.push_back(pos);
  if (out.empty() || out.back() != paragraph.size()) out.push_back(paragraph.size());
  return out;
}

// The farthest of `ends` (after `start`) up to which the text from `start` fits; `start` when
// not even the first does.
qsizetype FarthestFit(const QString& paragraph, qsizetype start, const std::vector<qsizetype>& ends,
                      const LineFit& fits) {
  qsizetype found = start;
  for (auto it = std::upper_bound(ends.begin(), ends.end(), start); it != ends.end(); ++it) {
    if (!fits(paragraph.mid(start, *it - start))) break;
    found = *it;
  }
  return found;
}

// The lines of one paragraph (a text without line breaks); an empty paragraph is one empty line.
void WrapParagraph(const QString& paragraph, const LineFit& fits, QStringList& lines) {
  if (paragraph.isEmpty()) {
    lines.append(QString());
    return;
  }
  const std::vector<qsizetype> breaks = Boundaries(paragraph, QTextBoundaryFinder::Line);
  const std::vector<qsizetype> characters = Boundaries(paragraph, QTextBoundaryFinder::Grapheme);
  for (qsizetype start = 0; start < paragraph.size();) {
    qsizetype end = FarthestFit(paragraph, start, breaks, fits);
    if (end == start) end = FarthestFit(paragraph, start, characters, fits);
    if (end == start) end = *std::upper_bound(characters.begin(), characters.end(), start);
    lines.append(paragraph.mid(start, end - start));
    start = end;
  }
}

// `text` cut at its line breaks (CR LF, LF or CR).
QStringList Paragraphs(const QString& text) {
  QString unified = text;
  unified.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  return unified.split(u'\n');
}

}  // namespace

std::u16string TextWrapping(const TextFont& font, int width, std::u16string_view text) {
  // Fonts cannot be measured before a QGuiApplication exists (Qt would abort).
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr)
    return std::u16string(text);
  const LineFit fits(ToQFont(font), width);
  QStringList lines;
  for (const QString& paragraph : Paragraphs(ToQString(text)))
    WrapParagraph(paragraph, fits, lines);
  return lines.join(QStringLiteral("\r\n")).toStdU16String();
}

}  // namespace mv::qt

namespace mv::modules {

std::u16string MV_TextWrapping(const qt::TextFont& font, int width, std::u16string_view text) {
  return qt::TextWrapping(font, width, text);
}

}  // namespace mv::modules
