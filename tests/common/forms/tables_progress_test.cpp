// The progress window of table archives with real widgets: Cancel and closing stop a real export on
// a SQLite file and leave no archive; the captions in both languages fit their window. With
// MV_SCREENSHOT_DIR set, the window is saved as tables-progress-en.png and tables-progress-zh.png.
#include "common/forms/tables_progress_dialog.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <cstdlib>
#include <filesystem>

#include "common/text/lang_changer.h"
#include "tests/common/tables/tables_fixture.h"

namespace mv::test {
namespace {

class TablesProgressTest : public testing::Test {
 protected:
  TablesProgressTest() { MakeGoods("DBMAIN", 60); }
  ~TablesProgressTest() override { LangChanger().SetLanguage(kLangChinese); }

  TempDir dir_;
  SqliteBackend backend_{dir_};
  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
};

TEST_F(TablesProgressTest, CancelAndCloseStopTheExportLeavingNoArchive) {
  LangChanger().SetLanguage(kLangEnglish);
  for (const bool byReject : {false, true}) {
    TTablesProgressDialog dialog(TTablesProgressDialog::tkExport);
    dialog.show();
    auto* cancel = dialog.findChild<QPushButton*>("btnCancel");
    ASSERT_NE(cancel, nullptr);
    EXPECT_EQ(cancel->text(), "Cancel");
    EXPECT_EQ(cancel->accessibleName(), "Cancel");
    const tables::TProgressEvent shown = dialog.ProgressEvent();
    tables::TExportOptions options;
    options.BatchRows = 10;
    int64_t lastRows = 0;
    options.Progress = [&](const tables::TArchiveProgress& p) {
      lastRows = p.Rows;
      if (p.Rows == 20) {
        if (byReject) {
          dialog.reject();  // what Esc and the window's close button do
        } else {
          QTest::mouseClick(cancel, Qt::LeftButton);
        }
      }
      return shown(p);
    };
    EXPECT_THROW(tables::ExportTables("DBMAIN", dir_.File("goods.zip"), {"Goods"}, options),
                 tables::ETablesCancelled)
        << (byReject ? "reject" : "Cancel");
    EXPECT_EQ(lastRows, 20);
    EXPECT_EQ(dialog.findChild<QProgressBar*>("barRows")->value(), 20);
    EXPECT_FALSE(std::filesystem::exists(dir_.File("goods.zip")));
  }
}

TEST_F(TablesProgressTest, CaptionsOfBothLanguagesFit) {
  const struct {
    uint8_t language;
    const char* file;
    const char16_t* title;
    const char16_t* label;
  } cases[] = {
      {kLangEnglish, "tables-progress-en.png", u"Export tables",
       u"Exporting table CustomsDeclarationLines (2 of 3)\n120000 of 480000 rows"},
      {kLangChinese, "tables-progress-zh.png", u"匯出資料表",
       u"正在匯出資料表 CustomsDeclarationLines（第 2 個，共 3 個）\n已處理 120000／480000 筆"},
  };
  for (const auto& c : cases) {
    LangChanger().SetLanguage(c.language);
    TTablesProgressDialog dialog(TTablesProgressDialog::tkExport);
    dialog.ShowProgress({"CustomsDeclarationLines", 1, 3, 120000, 480000});
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.windowTitle(), QString::fromStdU16String(c.title));
    auto* label = dialog.findChild<QLabel*>();
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), QString::fromStdU16String(c.label));
    for (const QString& line : label->text().split('\n')) {
      EXPECT_LE(label->fontMetrics().horizontalAdvance(line), label->contentsRect().width())
          << c.file;
    }
    EXPECT_EQ(dialog.findChild<QProgressBar*>("barRows")->value(), 120000);
    if (const char* dir = std::getenv("MV_SCREENSHOT_DIR")) {
      EXPECT_TRUE(dialog.grab().save(QString::fromUtf8(dir) + "/" + c.file));
    }
  }
  LangChanger().SetLanguage(kLangChinese);
  TTablesProgressDialog import(TTablesProgressDialog::tkImport);
  import.ShowProgress({"Inbox", 0, 1, 3000, -1});
  EXPECT_EQ(import.windowTitle(), QString::fromStdU16String(u"匯入資料表"));
  EXPECT_TRUE(import.labelText().endsWith(QString::fromStdU16String(u"已處理 3000 筆")));
  EXPECT_EQ(import.maximum(), 0);  // a moving bar: the row count is not known
}

}  // namespace
}  // namespace mv::test
