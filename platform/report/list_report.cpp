#include "platform/report/list_report.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "platform/db/field_types.h"
#include "platform/qt/qt_text.h"

namespace mv::report {
namespace {

// Page geometry in points.
constexpr double kMargin = 36;
constexpr double kTitleHeight = 22;
constexpr double kHeadingHeight = 14;
constexpr double kRowHeight = 13;
constexpr double kFooterHeight = 24;
constexpr double kColumnGap = 6;
// Rows read to find how wide each column's values are.
constexpr int kSampleRows = 200;

// Control characters of the data would print as boxes or move the text: blanks instead.
QString Printable(QString text) {
  for (QChar& c : text) {
    if (c.unicode() < 0x20 || c.unicode() == 0x7f) c = QLatin1Char(' ');
  }
  return text;
}

}  // namespace

TListReport::TListReport(db::TMVADODataSet& dataset, QObject* parent)
    : TRecordedReport(parent),
      dataset_(dataset),
      titleFont_(ReportFont(14, true)),
      headingFont_(ReportFont(9, true)),
      bodyFont_(ReportFont(9)) {}

void TListReport::SetFooterTexts(const QString& withCount, const QString& withoutCount) {
  withCount_ = withCount;
  withoutCount_ = withoutCount;
}

QFont TListReport::ReportFont(double points, bool bold) {
  QFont font;
  font.setFamilies({QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("Noto Sans CJK TC"),
                    QStringLiteral("AR PL UMing TW"), QStringLiteral("Microsoft JhengHei")});
  // Page coordinates are points, so a size in pixels of the page is a size in points.
  font.setPixelSize(std::max(1, static_cast<int>(points + 0.5)));
  font.setBold(bold);
  return font;
}

void TListReport::Begin() {
  rowsDone_ = 0;
  done_ = false;
  rowCount_ = dataset_.RecordCount();
  if (dataset_.CursorLocation() == db::clUseClient && dataset_.Active()) dataset_.First();
  LayOutColumns();
}

void TListReport::LayOutColumns() {
  columns_.clear();
  std::vector<double> natural;
  const QFontMetricsF heading(headingFont_);
  for (int i = 0; i < dataset_.FieldCount(); ++i) {
    db::TField& field = dataset_.Fields(i);
    if (!field.Visible()) continue;
    const QString title =
        Printable(qt::ToQString(codepage::ToWide(field.DisplayLabel(), codepage::UserCodePage())));
    columns_.push_back({i, title, 0, 0, db::IsNumericType(field.DataType())});
    natural.push_back(heading.horizontalAdvance(title));
  }
  // Values of rows spread over the whole list (the first and the last among them), when the
  // cursor can move to any row: the widest values are often the latest rows' numbers.
  const int rows = dataset_.CursorLocation() == db::clUseClient ? dataset_.RecordCount() : 0;
  if (rows > 0) {
    const QFontMetricsF body(bodyFont_);
    const int samples = std::min(rows, kSampleRows);
    for (int sample = 0; sample < samples; ++sample) {
      dataset_.SetRecNo(samples == 1 ? 1
                                     : 1 + static_cast<int>(static_cast<long long>(rows - 1) *
                                                            sample / (samples - 1)));
      for (std::size_t c = 0; c < columns_.size(); ++c) {
        const QString value = qt::ToQString(dataset_.Fields(columns_[c].field).AsWideString());
        natural[c] = std::max(natural[c], body.horizontalAdvance(value));
      }
    }
    dataset_.First();
  }
  // No column takes more than half the line, so one long text does not squeeze the others out.
  const double available = PageSizePoints().width() - 2 * kMargin;
  double total = 0;
  for (double& width : natural) total += (width = std::min(width + kColumnGap, available / 2));
  const double scale = total > available ? available / total : 1.0;
  double x = kMargin;
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    columns_[c].x = x;
    columns_[c].width = natural[c] * scale;
    x += columns_[c].width;
  }
}

void TListReport::DrawHeader(TPageRecording& recording) const {
  const double width = PageSizePoints().width() - 2 * kMargin;
  recording.SetFont(titleFont_);
  recording.DrawText(QRectF(kMargin, kMargin, width, kTitleHeight),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Printable(Title()));
  recording.SetFont(headingFont_);
  const QFontMetricsF metrics(headingFont_);
  const double y = kMargin + kTitleHeight;
  for (const TColumn& column : columns_) {
    const Qt::Alignment align = column.alignRight ? Qt::AlignRight : Qt::AlignLeft;
    const double inner = std::max(0.0, column.width - kColumnGap);
    recording.DrawText(QRectF(column.x, y, inner, kHeadingHeight),
                       align | Qt::AlignVCenter | Qt::TextSingleLine,
                       metrics.elidedText(column.title, Qt::ElideRight, inner));
  }
  recording.DrawLine(QLineF(kMargin, y + kHeadingHeight, kMargin + width, y + kHeadingHeight));
}

double TListReport::DrawRow(TPageRecording& recording, double y) {
  const QFontMetricsF metrics(bodyFont_);
  for (const TColumn& column : columns_) {
    const QString value = Printable(qt::ToQString(dataset_.Fields(column.field).AsWideString()));
    const Qt::Alignment align = column.alignRight ? Qt::AlignRight : Qt::AlignLeft;
    const double inner = std::max(0.0, column.width - kColumnGap);
    recording.DrawText(QRectF(column.x, y, inner, kRowHeight),
                       align | Qt::AlignVCenter | Qt::TextSingleLine,
                       metrics.horizontalAdvance(value) <= inner
                           ? value
                           : metrics.elidedText(value, Qt::ElideRight, inner));
  }
  return y + kRowHeight;
}

bool TListReport::RecordPage(int page, TPageRecording& recording) {
  // The first page is drawn even without rows: headings and the footer show an empty list.
  if (done_ || (page > 1 && dataset_.Eof())) {
    done_ = true;
    return false;
  }
  DrawHeader(recording);
  recording.SetFont(bodyFont_);
  const double bottom = PageSizePoints().height() - kMargin - kFooterHeight;
  double y = kMargin + kTitleHeight + kHeadingHeight + 2;
  while (!dataset_.Eof() && y + kRowHeight <= bottom) {
    y = DrawRow(recording, y);
    ++rowsDone_;
    dataset_.Next();
  }
  done_ = dataset_.Eof();
  return true;
}

int TListReport::WorkDone() const {
  if (rowCount_ <= 0) return std::min(99, PageCount());
  return static_cast<int>(static_cast<long long>(rowsDone_) * 100 / rowCount_);
}

void TListReport::PaintFrame(int page, int pageCount, QPainter& painter) const {
  const QSizeF size = PageSizePoints();
  const double top = size.height() - kMargin - kFooterHeight + 6;
  painter.drawLine(QPointF(kMargin, top), QPointF(size.width() - kMargin, top));
  painter.setFont(bodyFont_);
  const QString text =
      pageCount > 0 ? withCount_.arg(page).arg(pageCount) : withoutCount_.arg(page);
  painter.drawText(QRectF(kMargin, top + 2, size.width() - 2 * kMargin, kFooterHeight - 8),
                   Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

}  // namespace mv::report
