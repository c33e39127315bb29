// The report engine over a real SQLite inbox: pages arrive while the event loop runs, replay the
// same onto every device, and print and export into PDF files that poppler reads back.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <sstream>
#include <vector>

#include "platform/report/composite_report.h"
#include "platform/report/list_report.h"
#include "platform/report/print_job.h"
#include "platform/report/printers.h"
#include "tests/platform/report/report_fixture.h"

namespace mv::report {
namespace {

using test::PdfFonts;
using test::PdfPageCount;
using test::PdfText;

// 54 rows fit an A4 portrait page.
constexpr int kRowsPerPage = 54;

class ReportTest : public testing::Test {
 protected:
  QString File(const char* name) const { return QString::fromStdString(dir_.File(name)); }

  test::TempDir dir_;
  test::TestInbox inbox_{dir_, 2 * kRowsPerPage + 12};
  std::unique_ptr<db::TMVADODataSet> rows_ = inbox_.Open();
  TListReport report_{*rows_};
};

TEST_F(ReportTest, PagesArriveOneTurnAtATimeAndProgressEndsAtAHundred) {
  report_.SetTitle(QStringLiteral("收件匣 Inbox"));
  QSignalSpy pages(&report_, &TReport::pageAvailable);
  QSignalSpy progress(&report_, &TReport::progressChanged);
  std::vector<TReportStatus> statusAtPage;
  QObject::connect(&report_, &TReport::pageAvailable,
                   [&] { statusAtPage.push_back(report_.Status()); });
  report_.Start();
  EXPECT_EQ(report_.Status(), rsGenerating);
  EXPECT_EQ(report_.PageCount(), 0);  // nothing before the event loop's turn
  QTRY_COMPARE(report_.Status(), rsFinished);
  EXPECT_EQ(report_.PageCount(), 3);
  ASSERT_EQ(pages.count(), 3);
  EXPECT_EQ(pages.at(0).at(0).toInt(), 1);
  EXPECT_EQ(statusAtPage.front(), rsGenerating);  // the first page is shown before the end
  EXPECT_EQ(progress.last().at(0).toInt(), 100);
  for (qsizetype i = 1; i < progress.count(); ++i)
    EXPECT_GT(progress.at(i).at(0).toInt(), progress.at(i - 1).at(0).toInt());
  // Generating again starts over from the first row and gives the same pages.
  report_.GenerateAll();
  EXPECT_EQ(report_.PageCount(), 3);
  EXPECT_GT(report_.RecordedBytes(), 0u);
}

TEST_F(ReportTest, ExportedPdfHoldsEveryPageWithSearchableChineseTextInAnEmbeddedFont) {
  report_.SetTitle(QStringLiteral("收件匣 Inbox"));
  report_.GenerateAll();
  const std::string pdf = dir_.File("inbox.pdf");
  ASSERT_TRUE(ExportPdf(report_, QString::fromStdString(pdf)));
  EXPECT_EQ(PdfPageCount(pdf), 3);
  const std::string first = PdfText(pdf, 1, 1);
  EXPECT_NE(first.find("收件匣 Inbox"), std::string::npos) << first;
  EXPECT_NE(first.find("編號"), std::string::npos);
  EXPECT_NE(first.find("報關單 Declaration 1"), std::string::npos);
  EXPECT_NE(first.find("Page 1 of 3"), std::string::npos);
  EXPECT_EQ(first.find("R00055"), std::string::npos);  // the 55th row opens page 2
  const std::string last = PdfText(pdf, 3, 3);
  EXPECT_NE(last.find("R00120"), std::string::npos);
  EXPECT_NE(last.find("180"), std::string::npos);  // Amount of row 120
  EXPECT_EQ(last.find("Hidden"), std::string::npos);
  const std::string fonts = PdfFonts(pdf);
  EXPECT_NE(fonts.find("WenQuanYi"), std::string::npos) << fonts;
  // Every font line of pdffonts says "yes" in its "emb" column (fifth from the end).
  std::istringstream lines(fonts);
  int fontLines = 0;
  for (std::string line; std::getline(lines, line);) {
    std::vector<std::string> words;
    std::istringstream split(line);
    for (std::string word; split >> word;) words.push_back(word);
    if (words.size() < 6 || line.starts_with("name") || line.starts_with("---")) continue;
    ++fontLines;
    EXPECT_EQ(words[words.size() - 5], "yes") << line;
  }
  EXPECT_GE(fontLines, 1) << fonts;
}

TEST_F(ReportTest, APrinterGetsTheChosenPagesAsCollatedCopiesInTheReportsOrientation) {
  report_.SetOrientation(QPageLayout::Landscape);
  report_.GenerateAll();
  const QString file = File("printed.pdf");
  TPdfFilePrinter printer(QStringLiteral("Test printer"), file);
  report_.PrintSettings() = {.FirstPage = 2, .LastPage = 3, .Copies = 2};
  QSignalSpy printed(&report_, &TReport::printed);
  ASSERT_TRUE(PrintReport(report_, printer));
  EXPECT_EQ(printed.count(), 1);
  const std::string pdf = file.toStdString();
  ASSERT_EQ(PdfPageCount(pdf), 4);
  EXPECT_NE(test::PdfPageSize(pdf).find("842 x 595"), std::string::npos) << test::PdfPageSize(pdf);
  const int pagesOf[] = {2, 3, 2, 3};  // landscape pages hold fewer rows: 4 pages in all
  for (int sheet = 1; sheet <= 4; ++sheet) {
    const std::string footer = "Page " + std::to_string(pagesOf[sheet - 1]) + " of ";
    EXPECT_NE(PdfText(pdf, sheet, sheet).find(footer), std::string::npos) << sheet;
  }
  // A range beyond the report is cut to its pages; a printer that does not exist prints nothing.
  report_.PrintSettings() = {.FirstPage = 4, .LastPage = 99, .Copies = 1};
  ASSERT_TRUE(PrintReport(report_, printer));
  EXPECT_EQ(PdfPageCount(pdf), 1);
  report_.PrintSettings().PrinterIndex = 1;
  EXPECT_FALSE(PrintReport(report_, printer));
  EXPECT_FALSE(PrintReport(report_, TNoPrinters()));
  EXPECT_EQ(printed.count(), 2);
}

TEST_F(ReportTest, ACompositeReportRunsItsReportsInTurnEachWithItsOwnNumbering) {
  auto moreRows = inbox_.Open();
  TListReport second(*moreRows);
  second.SetOrientation(QPageLayout::Landscape);
  second.SetFooterTexts(QStringLiteral("第%1頁，共%2頁"), QStringLiteral("第%1頁"));
  TCompositeReport both;
  both.Add(report_);
  both.Add(second);
  QSignalSpy finishedFirst(&report_, &TReport::finished);
  both.Start();
  QTRY_COMPARE(both.Status(), rsFinished);
  EXPECT_EQ(finishedFirst.count(), 1);
  EXPECT_EQ(both.PageCount(), report_.PageCount() + second.PageCount());
  EXPECT_EQ(both.Locate(4), std::make_pair(static_cast<TReport*>(&second), 1));
  EXPECT_EQ(both.Locate(both.PageCount() + 1).first, nullptr);
  const std::string pdf = dir_.File("both.pdf");
  ASSERT_TRUE(ExportPdf(both, QString::fromStdString(pdf)));
  EXPECT_EQ(PdfPageCount(pdf), both.PageCount());
  EXPECT_NE(PdfText(pdf, 3, 3).find("Page 3 of 3"), std::string::npos);
  EXPECT_NE(PdfText(pdf, 4, 4).find("第1頁，共" + std::to_string(second.PageCount()) + "頁"),
            std::string::npos);
}

TEST(ListReport, AnEmptyListIsOnePageOfHeadingsAndHostileTextStaysOnItsLine) {
  test::TempDir dir;
  test::TestInbox inbox(dir, 0);
  db::TMVADODataSet rows;
  rows.SetCommandText(u"select N'a\x02line\r\nbreak' as Odd, N'" + std::u16string(2000, u'長') +
                      u"' as Long");
  rows.Open();
  TListReport odd(rows);
  odd.GenerateAll();
  ASSERT_EQ(odd.PageCount(), 1);
  const std::string pdf = dir.File("odd.pdf");
  ASSERT_TRUE(ExportPdf(odd, QString::fromStdString(pdf)));
  const std::string text = PdfText(pdf);
  EXPECT_NE(text.find("a line break"), std::string::npos) << text;  // one line
  EXPECT_NE(text.find("長長…"), std::string::npos);  // cut to its column with an ellipsis
  int longCharacters = 0;
  for (std::size_t at = text.find("長"); at != std::string::npos; at = text.find("長", at + 1))
    ++longCharacters;
  EXPECT_LT(longCharacters, 100);

  auto empty = inbox.Open();
  TListReport none(*empty);
  none.GenerateAll();
  ASSERT_EQ(none.PageCount(), 1);
  ASSERT_TRUE(ExportPdf(none, QString::fromStdString(pdf)));
  EXPECT_NE(PdfText(pdf).find("Subject 主旨"), std::string::npos);
  EXPECT_NE(PdfText(pdf).find("Page 1 of 1"), std::string::npos);
  // Pages outside the report paint nothing; an unwritable file is refused.
  QImage image(10, 10, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  none.PaintPage(2, painter);
  painter.end();
  EXPECT_EQ(image.pixel(5, 5), QColor(Qt::white).rgb());
  EXPECT_FALSE(ExportPdf(none, QString::fromStdString(dir.File("no/such/folder/x.pdf"))));
}

}  // namespace
}  // namespace mv::report
