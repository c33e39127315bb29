// Wrapping wide text to a width in pixels by the metrics of a font. No Qt type appears here, so
// callers outside the Qt layer can use it.
#pragma once

#include <string>
#include <string_view>

namespace mv::qt {

// A font as the library names one: family (UTF-16, "DejaVu Sans", "新細明體") and size in points.
// An unknown family falls back to the font the system substitutes; a size of 0 or less keeps
// the application font's size.
struct TextFont {
  std::u16string family;
  double pointSize = 9;
};

// `text` (UTF-16) broken into lines that each fit `width` pixels in `font`, joined with CR LF.
// Lines break after a run of blanks where possible and, following the Unicode line-break rules,
// between CJK characters; a word wider than the line is broken between characters (never inside
// a surrogate pair or a combined character). A line always holds at least one character, so a
// width of 0 or less gives one character per line. Blanks before a break stay at the end of
// their line and do not count toward its width, so removing the inserted CR LF gives the text
// back. Line breaks already in the text (CR LF, LF or CR) are kept, written as CR LF. Fonts are
// measured by Qt: without a QGuiApplication (a console program) the text comes back unchanged.
std::u16string TextWrapping(const TextFont& font, int width, std::u16string_view text);

}  // namespace mv::qt

namespace mv::modules {

// The sibling package's name of mv::qt::TextWrapping; same contract.
std::u16string MV_TextWrapping(const qt::TextFont& font, int width, std::u16string_view text);

}  // namespace mv::modules
