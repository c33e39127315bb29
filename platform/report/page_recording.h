// The recorded content of one page: text in rectangles, lines and the fonts they use, kept as a
// list of drawing commands in points and replayed onto any painter. Replaying does not depend
// on the device's resolution: fonts are sized in points of the page.
#pragma once

#include <QFont>
#include <QLineF>
#include <QRectF>
#include <QString>
#include <cstddef>
#include <vector>

class QPainter;

namespace mv::report {

class TPageRecording {
 public:
  // The font of the text drawn after it (its pixel size is read as points of the page).
  void SetFont(const QFont& font);
  // Text (UTF-16) in `rect` with Qt alignment `flags`, in the current font.
  void DrawText(const QRectF& rect, int flags, const QString& text);
  void DrawLine(const QLineF& line);

  // Draws every command in order onto `painter`, whose coordinates are points of the page; the
  // painter's font and pen are restored afterwards.
  void Play(QPainter& painter) const;
  // Bytes held by the commands and their texts.
  std::size_t Bytes() const;
  bool Empty() const { return commands_.empty(); }

 private:
  enum TKind : unsigned char { kFont, kText, kLine };
  struct TCommand {
    TKind kind;
    int flags;    // kText: alignment; kFont: index into fonts_
    QRectF rect;  // kText: the text's box; kLine: from top-left to bottom-right
    QString text;
  };
  std::vector<TCommand> commands_;
  std::vector<QFont> fonts_;
};

}  // namespace mv::report
