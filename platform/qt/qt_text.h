// UTF-16 text between the library and Qt, code unit for code unit. Qt's own
// QString::fromStdU16String and QString::fromUtf16 read a leading U+FEFF or U+FFFE as a
// byte-order mark (dropping it, or byte-swapping the rest), which would change a user's text.
#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

namespace mv::qt {

// `text` (UTF-16) as a QString, every code unit kept, lone surrogates included.
[[nodiscard]] inline QString ToQString(std::u16string_view text) {
  return QStringView(text).toString();
}

// `text` as UTF-16, every code unit kept.
[[nodiscard]] inline std::u16string ToU16String(const QString& text) {
  return text.toStdU16String();
}

}  // namespace mv::qt
