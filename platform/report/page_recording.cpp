#include "platform/report/page_recording.h"

#include <QPainter>

namespace mv::report {

void TPageRecording::SetFont(const QFont& font) {
  int index = 0;
  while (index < static_cast<int>(fonts_.size()) && !(fonts_[index] == font)) ++index;
  if (index == static_cast<int>(fonts_.size())) fonts_.push_back(font);
  commands_.push_back({kFont, index, {}, {}});
}

void TPageRecording::DrawText(const QRectF& rect, int flags, const QString& text) {
  commands_.push_back({kText, flags, rect, text});
}

void TPageRecording::DrawLine(const QLineF& line) {
  commands_.push_back({kLine, 0, QRectF(line.p1(), line.p2()), {}});
}

void TPageRecording::Play(QPainter& painter) const {
  painter.save();
  for (const TCommand& command : commands_) {
    switch (command.kind) {
      case kFont:
        painter.setFont(fonts_[static_cast<std::size_t>(command.flags)]);
        break;
      case kText:
        painter.drawText(command.rect, command.flags, command.text);
        break;
      case kLine:
        painter.drawLine(QLineF(command.rect.topLeft(), command.rect.bottomRight()));
        break;
    }
  }
  painter.restore();
}

std::size_t TPageRecording::Bytes() const {
  std::size_t bytes = commands_.capacity() * sizeof(TCommand) + fonts_.capacity() * sizeof(QFont);
  for (const TCommand& command : commands_)
    bytes += static_cast<std::size_t>(command.text.capacity()) * sizeof(QChar);
  return bytes;
}

}  // namespace mv::report
