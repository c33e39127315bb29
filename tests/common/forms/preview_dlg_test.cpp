// The preview dialog with real widgets over a real list report: paging at the edges, the zoom
// field and list, the buttons that wait for the report and for a printer, printing and exporting
// into PDF files that poppler reads back, and closing.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <cstdlib>

#include "common/forms/preview_dlg.h"
#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "platform/dialogs/dialogs.h"
#include "platform/report/composite_report.h"
#include "platform/report/list_report.h"
#include "platform/report/preview_control.h"
#include "platform/report/preview_handler.h"
#include "platform/report/printers.h"
#include "tests/platform/qt/qt_test_support.h"
#include "tests/platform/report/report_fixture.h"
#include "tests/support/installation.h"

namespace mv::forms {
namespace {

// A printer that is listed but cannot be opened: every print fails.
class BrokenPrinter : public report::TPrinterSet {
 public:
  QStringList Names() const override { return {QStringLiteral("Offline")}; }
  int DefaultIndex() const override { return 0; }
  std::unique_ptr<QPrinter> Open(int) const override { return nullptr; }
};

class PreviewDlgTest : public testing::Test {
 protected:
  PreviewDlgTest() {
    LangChanger().EnglishTogether();
    report_.SetTitle(QStringLiteral("收件匣 Inbox"));
    report::SetPrinters(&printer_);
  }
  ~PreviewDlgTest() override { report::SetPrinters(nullptr); }

  // A shown dialog over the report, once the print buttons are enabled.
  std::unique_ptr<TPreviewDlg> ShowReady() {
    auto dialog = std::make_unique<TPreviewDlg>(nullptr, &report_);
    dialog->resize(900, 700);
    dialog->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    auto* print = Find<QPushButton>(*dialog, "btnPrint");
    EXPECT_TRUE(QTest::qWaitFor([print] { return print->isEnabled(); }, 5000));
    return dialog;
  }
  template <typename W>
  static W* Find(const QWidget& dialog, const char* name) {
    auto* widget = dialog.findChild<W*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  static report::TPreviewControl& Preview(const QWidget& dialog) {
    return *Find<report::TPreviewControl>(dialog, "QRPreview");
  }
  static QString Status(const QWidget& dialog) {
    return Find<QLabel>(dialog, "StatusPanel1")->text();
  }

  test::TestInstallation installation_;
  test::TestInbox inbox_{installation_.Dir(), 120};  // three pages
  std::unique_ptr<db::TMVADODataSet> rows_ = inbox_.Open();
  report::TListReport report_{*rows_};
  report::TPdfFilePrinter printer_{QStringLiteral("Test printer"),
                                   QString::fromStdString(installation_.Dir().File("printed.pdf"))};
};

TEST_F(PreviewDlgTest, PagingStopsAtTheEdgesAndTheButtonsFollow) {
  auto dialog = ShowReady();
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("收件匣 Inbox"));
  EXPECT_EQ(dialog->CurrentReport(), &report_);
  auto& preview = Preview(*dialog);
  auto* prior = Find<QToolButton>(*dialog, "btnPrior");
  auto* next = Find<QToolButton>(*dialog, "btnNext");
  auto* page = Find<QLineEdit>(*dialog, "edtPage");
  EXPECT_EQ(Status(*dialog), QStringLiteral("Page 1 of 3"));
  EXPECT_FALSE(prior->isEnabled());
  EXPECT_TRUE(next->isEnabled());
  dialog->GotoPage(33);
  EXPECT_EQ(preview.PageNumber(), 1);
  page->setFocus();
  QTest::keyClick(page, Qt::Key_End);
  EXPECT_EQ(preview.PageNumber(), 3);
  EXPECT_EQ(page->text(), QStringLiteral("3"));
  EXPECT_FALSE(next->isEnabled());
  EXPECT_TRUE(prior->isEnabled());
  dialog->GotoPage(34);
  EXPECT_EQ(preview.PageNumber(), 3);
  EXPECT_EQ(Status(*dialog), QStringLiteral("Page 3 of 3"));
  QTest::keyClick(page, Qt::Key_PageUp);
  EXPECT_EQ(preview.PageNumber(), 2);
  QTest::keyClick(page, Qt::Key_Home);
  EXPECT_EQ(preview.PageNumber(), 1);
  // Typed pages: "3" goes there; out of range or not a number puts the current page back.
  for (const auto& [typed, expected] :
       {std::pair{"3", 3}, {"4", 3}, {"0", 3}, {"2x", 3}, {" 2", 2}, {"1 2", 2}}) {
    page->setText(QString::fromUtf8(typed));
    QTest::keyClick(page, Qt::Key_Return);
    EXPECT_EQ(preview.PageNumber(), expected) << typed;
    EXPECT_EQ(page->text(), QString::number(expected)) << typed;
  }
  next->click();
  EXPECT_EQ(preview.PageNumber(), 3);
  // Chinese status text and captions after the system-wide switch.
  LangChanger().ChineseTogether();
  EXPECT_EQ(Status(*dialog), QStringLiteral("第3頁，共3頁"));
  EXPECT_EQ(Find<QPushButton>(*dialog, "btnPrint")->text(), QStringLiteral("列印(&P)"));
  EXPECT_EQ(Find<QComboBox>(*dialog, "cbxZoom")->itemText(8), QStringLiteral("頁寬"));
  LangChanger().EnglishTogether();
  EXPECT_EQ(Find<QComboBox>(*dialog, "cbxZoom")->itemText(9), QStringLiteral("Whole Page"));
}

TEST_F(PreviewDlgTest, ZoomFieldTakesDigitsOnlyAndBadTextLeavesTheZoom) {
  auto dialog = ShowReady();
  auto& preview = Preview(*dialog);
  auto* zoom = Find<QLineEdit>(*dialog, "edtZoom");
  auto* list = Find<QComboBox>(*dialog, "cbxZoom");
  list->setCurrentIndex(3);
  emit list->activated(3);
  EXPECT_EQ(preview.Zoom(), 100);
  EXPECT_EQ(zoom->text(), QStringLiteral("100%"));
  for (const char* bad : {"0", "12a", "", "100%"}) {
    zoom->setText(QString::fromUtf8(bad));
    QTest::keyClick(zoom, Qt::Key_Return);
    EXPECT_EQ(preview.Zoom(), 100) << bad;
    EXPECT_EQ(zoom->text(), QStringLiteral("100%")) << bad;
  }
  EXPECT_EQ(list->currentIndex(), 3);
  // Typing: letters, the percent sign and backspace are dropped; digits arrive.
  zoom->setFocus();
  zoom->clear();
  QTest::keyClicks(zoom, QStringLiteral("1a5%"));
  QTest::keyClick(zoom, Qt::Key_Backspace);
  EXPECT_EQ(zoom->text(), QStringLiteral("15"));
  QTest::keyClick(zoom, Qt::Key_Return);
  EXPECT_EQ(preview.Zoom(), 15);
  EXPECT_EQ(zoom->text(), QStringLiteral("15%"));
  EXPECT_EQ(zoom->selectedText(), QStringLiteral("15%"));
  EXPECT_EQ(list->currentIndex(), -1);  // a typed zoom is no item of the list
  // A huge number is the largest zoom.
  zoom->setText(QStringLiteral("99999999999"));
  QTest::keyClick(zoom, Qt::Key_Return);
  EXPECT_EQ(preview.Zoom(), 1000);
}

TEST_F(PreviewDlgTest, PageWidthAndWholePageFollowTheWindowSize) {
  auto dialog = ShowReady();
  auto& preview = Preview(*dialog);
  auto* list = Find<QComboBox>(*dialog, "cbxZoom");
  list->setCurrentIndex(8);
  emit list->activated(8);
  const int narrow = preview.Zoom();
  dialog->resize(1400, 700);
  QTRY_VERIFY(preview.Zoom() > narrow);
  EXPECT_EQ(Find<QLineEdit>(*dialog, "edtZoom")->text(), QString::number(preview.Zoom()) + "%");
  list->setCurrentIndex(9);
  emit list->activated(9);
  const int whole = preview.Zoom();
  dialog->resize(1400, 400);
  QTRY_VERIFY(preview.Zoom() < whole);
}

TEST_F(PreviewDlgTest, WithoutAPrinterPrintingStaysDisabledForGood) {
  report::TNoPrinters none;
  report::SetPrinters(&none);
  TPreviewDlg dialog(nullptr, &report_);
  dialog.show();
  QTRY_COMPARE(report_.Status(), report::rsFinished);
  QTRY_VERIFY(Find<QPushButton>(dialog, "btnClose")->isEnabled());
  EXPECT_FALSE(Find<QTimer>(dialog, "Timer1")->isActive());
  for (const char* name : {"btnPrint", "btnPageSetup", "btnExport"})
    EXPECT_FALSE(Find<QPushButton>(dialog, name)->isEnabled()) << name;
  // A listed printer that fails: the failure is told in the user's language, and not passed on.
  BrokenPrinter broken;
  report::SetPrinters(&broken);
  dialogs::RecordingDialogProvider boxes;
  dialogs::ScopedProvider scoped(boxes);
  auto ready = ShowReady();
  Find<QPushButton>(*ready, "btnPrint")->click();
  ASSERT_EQ(boxes.Requests().size(), 1u);
  EXPECT_EQ(boxes.Requests()[0].text, u"There is no printer installed. Unable to print.");
  EXPECT_EQ(boxes.Requests()[0].kind, dialogs::mtError);
  EXPECT_TRUE(Find<QPushButton>(*ready, "btnPrint")->isEnabled());
  EXPECT_FALSE(TPreviewDlg::ReportPrinted());
}

TEST_F(PreviewDlgTest, PrintSetupPrintsTheChosenRangeAndCopiesAndCloseWaitsForThePrint) {
  auto dialog = ShowReady();
  EXPECT_EQ(dialog->PrintChoice().MaxPage, 3);
  EXPECT_EQ(dialog->PrintChoice().ToPage, 3);
  TPrintChoice offered;
  dialog->SetPrintDialogRunner([&](QWidget*, TPrintChoice& choice) {
    offered = choice;
    choice.PageRange = true;
    choice.FromPage = 2;
    choice.ToPage = 3;
    choice.Copies = 2;
    choice.PrinterIndex = 0;
    choice.Orientation = QPageLayout::Landscape;
    return true;
  });
  // Every printed page tries to close the window: refused while the print goes on.
  std::vector<bool> visibleAfterClose;
  QObject::connect(&report_, &report::TReport::pagePrinted, [&] {
    dialog->close();
    dialog->reject();
    visibleAfterClose.push_back(dialog->isVisible());
  });
  Find<QPushButton>(*dialog, "btnPageSetup")->click();
  EXPECT_EQ(offered.MinPage, 1);
  EXPECT_EQ(offered.MaxPage, 3);
  EXPECT_EQ(offered.Copies, 1);
  EXPECT_EQ(visibleAfterClose, std::vector<bool>(4, true));
  const std::string pdf = installation_.Dir().File("printed.pdf");
  ASSERT_EQ(test::PdfPageCount(pdf), 4);
  // Print setup keeps the report page's orientation; the chosen one is the printer's.
  EXPECT_NE(test::PdfPageSize(pdf).find("595 x 842"), std::string::npos) << test::PdfPageSize(pdf);
  EXPECT_EQ(dialog->PrintChoice().Orientation, QPageLayout::Landscape);
  EXPECT_NE(test::PdfText(pdf, 1, 1).find("Page 2 of 3"), std::string::npos);
  EXPECT_NE(test::PdfText(pdf, 3, 3).find("Page 2 of 3"), std::string::npos);
  EXPECT_NE(test::PdfText(pdf, 4, 4).find("Page 3 of 3"), std::string::npos);
  EXPECT_TRUE(TPreviewDlg::ReportPrinted());
  // Cancelling the print dialog prints nothing; the plain Print button prints all, once.
  QObject::disconnect(&report_, &report::TReport::pagePrinted, nullptr, nullptr);
  dialog->SetPrintDialogRunner([](QWidget*, TPrintChoice&) { return false; });
  Find<QPushButton>(*dialog, "btnPageSetup")->click();
  EXPECT_EQ(test::PdfPageCount(pdf), 4);
  Find<QPushButton>(*dialog, "btnPrint")->click();
  EXPECT_EQ(test::PdfPageCount(pdf), 3);
  EXPECT_NE(test::PdfPageSize(pdf).find("842 x 595"), std::string::npos) << test::PdfPageSize(pdf);
  // After printing the window closes again.
  dialog->close();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->CurrentReport(), nullptr);
}

TEST_F(PreviewDlgTest, ExportWritesThePdfIntoTheConfiguredFolder) {
  ServerPath = installation_.ServerFolder() + "/";
  Global_Merovan_Ini = "SEDIFSYS.INI";
  auto dialog = ShowReady();
  std::vector<TSaveRequest> asked;
  const std::string file = installation_.Dir().File("inbox.pdf");
  dialog->SetFileChooser([&](QWidget*, const TSaveRequest& request) {
    asked.push_back(request);
    return QString::fromStdString(file);
  });
  Find<QPushButton>(*dialog, "btnExport")->click();
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0].Directory.toStdString(), installation_.ServerFolder() + "/EXPORT/");
  EXPECT_EQ(asked[0].Filter, QStringLiteral("Portable Document Format (*.PDF)"));
  EXPECT_EQ(asked[0].DefaultSuffix, QStringLiteral("pdf"));
  EXPECT_EQ(test::PdfPageCount(file), 3);
  const std::string text = test::PdfText(file);
  EXPECT_NE(text.find("收件匣 Inbox"), std::string::npos);
  EXPECT_NE(text.find("報關單 Declaration 120"), std::string::npos);
  // The configured folder; cancelling writes nothing.
  // The configuration file is in the system code page (950 meanwhile, see TestInbox).
  installation_.WriteSystemIni("[Advance]\nExportPath=" + codepage::FromWide(u"/srv/匯出/", 950) +
                               "\n");
  dialog->SetFileChooser([&](QWidget*, const TSaveRequest& request) {
    asked.push_back(request);
    return QString();
  });
  std::remove(file.c_str());
  Find<QPushButton>(*dialog, "btnExport")->click();
  ASSERT_EQ(asked.size(), 2u);
  EXPECT_EQ(asked[1].Directory, QStringLiteral("/srv/匯出/"));
  EXPECT_EQ(test::PdfPageCount(file), -1);
}

TEST_F(PreviewDlgTest, ClosingWaitsForTheFirstPageAndAnEmptyPreviewCloses) {
  auto moreRows = inbox_.Open();
  report::TListReport second(*moreRows);
  report::TCompositeReport both;
  both.Add(report_);
  both.Add(second);
  TPreviewDlg dialog(nullptr, &both);
  dialog.show();
  EXPECT_EQ(dialog.CurrentReport(), nullptr);  // a composite is no single report
  EXPECT_FALSE(Find<QPushButton>(dialog, "btnClose")->isEnabled());
  dialog.close();
  EXPECT_TRUE(dialog.isVisible());
  QTRY_VERIFY(Find<QPushButton>(dialog, "btnClose")->isEnabled());
  QTRY_COMPARE(both.Status(), report::rsFinished);
  EXPECT_EQ(Preview(dialog).PageCount(), 6);
  Find<QPushButton>(dialog, "btnClose")->click();
  EXPECT_FALSE(dialog.isVisible());

  TPreviewDlg empty(nullptr, nullptr);
  EXPECT_EQ(empty.windowTitle(), QStringLiteral("Untitled Report"));
  empty.show();
  QTest::keyClick(&empty, Qt::Key_Escape);
  EXPECT_FALSE(empty.isVisible());
}

TEST_F(PreviewDlgTest, TheStartRoutinesMakeItThePreviewOfEveryReport) {
  RegisterPrintPreview();
  bool shown = false;
  test::WhenModal([&](QWidget& modal) {
    auto* dialog = qobject_cast<TPreviewDlg*>(&modal);
    ASSERT_NE(dialog, nullptr);
    shown = dialog->CurrentReport() == &report_;
    auto* close = Find<QPushButton>(*dialog, "btnClose");
    QTRY_VERIFY(close->isEnabled());
    close->click();
  });
  EXPECT_TRUE(report::PreviewModal(report_));
  EXPECT_TRUE(shown);
  report::SetPreviewHandler({});
  EXPECT_FALSE(report::Preview(report_));
}

// The picture of the documentation: the preview of a Chinese list report, in Chinese. Written
// into MV_SCREENSHOT_DIR when that folder is set.
TEST_F(PreviewDlgTest, ChineseScreenshot) {
  LangChanger().ChineseTogether();
  auto dialog = ShowReady();
  dialog->resize(1000, 720);
  QTRY_COMPARE(Status(*dialog), QStringLiteral("第1頁，共3頁"));
  const QImage image = dialog->grab().toImage();
  EXPECT_EQ(image.width(), 1000);
  if (const char* folder = std::getenv("MV_SCREENSHOT_DIR")) {
    EXPECT_TRUE(image.save(QString::fromUtf8(folder) + "/print_preview.png"));
  }
  LangChanger().EnglishTogether();
}

}  // namespace
}  // namespace mv::forms
