// A list report over a dataset: the title on every page, a heading per visible field (its
// display label), one line per row with the fields' values in field order, and a footer with the
// page number and, once generation is over, the page count. Text is drawn with a CJK font, so
// Chinese titles, labels and values print and export as text that can be searched and copied.
#pragma once

#include <QFont>
#include <QString>
#include <vector>

#include "platform/report/recorded_report.h"

namespace mv::db {
class TMVADODataSet;
}

namespace mv::report {

class TListReport : public TRecordedReport {
  Q_OBJECT

 public:
  // A report of the rows of `dataset` (not owned; it must stay open and outlive the report).
  // Generation starts at its first row and moves its cursor to the end; a server cursor can be
  // reported once, a client cursor again.
  explicit TListReport(db::TMVADODataSet& dataset, QObject* parent = nullptr);

  // The footer texts: `withCount` takes %1 the page and %2 the count ("Page %1 of %2"),
  // `withoutCount` (while the count is not known yet) only %1.
  void SetFooterTexts(const QString& withCount, const QString& withoutCount);

  // The font of all text: the first of the CJK families the machine has, at a size in points.
  [[nodiscard]] static QFont ReportFont(double points, bool bold = false);

 protected:
  void Begin() override;
  bool RecordPage(int page, TPageRecording& recording) override;
  bool Done() const override { return done_; }
  int WorkDone() const override;
  void PaintFrame(int page, int pageCount, QPainter& painter) const override;

 private:
  struct TColumn {
    int field;        // index of the field in the dataset's order
    QString title;    // its display label
    double x;         // left edge in points
    double width;     // in points
    bool alignRight;  // numbers
  };
  void LayOutColumns();
  void DrawHeader(TPageRecording& recording) const;
  double DrawRow(TPageRecording& recording, double y);

  db::TMVADODataSet& dataset_;
  std::vector<TColumn> columns_;
  QString withCount_ = QStringLiteral("Page %1 of %2");
  QString withoutCount_ = QStringLiteral("Page %1");
  QFont titleFont_;
  QFont headingFont_;
  QFont bodyFont_;
  int rowsDone_ = 0;
  int rowCount_ = -1;
  bool done_ = false;
};

}  // namespace mv::report
