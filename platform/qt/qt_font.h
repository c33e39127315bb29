// The Qt font of a TextFont.
#pragma once

#include <QFont>

#include "platform/qt/text_wrapping.h"

namespace mv::qt {

// A QFont of the font's family at its point size (the application font's size when 0 or less).
QFont ToQFont(const TextFont& font);

}  // namespace mv::qt
