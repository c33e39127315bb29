#include "common/forms/tables_progress_dialog.h"

#include <QCoreApplication>
#include <QProgressBar>
#include <QPushButton>

#include "common/text/lang_changer.h"
#include "platform/qt/qt_text.h"

namespace mv {
namespace {

// Wide enough for a table name of 30 characters in either language.
constexpr int kMinimumWidth = 460;

bool English() {
  return LangChanger().Language() == kLangEnglish;
}

QString Text(const char* english, const char16_t* chinese) {
  return English() ? QString::fromUtf8(english) : qt::ToQString(chinese);
}

QString Label(TTablesProgressDialog::TKind kind, const tables::TArchiveProgress& p) {
  const QString table = QString::fromStdString(p.Table);
  const QString index = QString::number(p.TableIndex + 1);
  const QString count = QString::number(p.TableCount);
  const QString rows = QString::number(p.Rows);
  const QString total = QString::number(p.TableRows);
  const bool known = p.TableRows >= 0;
  if (English()) {
    const QString verb = kind == TTablesProgressDialog::tkExport ? "Exporting" : "Importing";
    return verb + " table " + table + " (" + index + " of " + count + ")\n" +
           (known ? rows + " of " + total + " rows" : rows + " rows");
  }
  const QString verb =
      kind == TTablesProgressDialog::tkExport ? "正在匯出資料表 " : "正在匯入資料表 ";
  return verb + table + "（第 " + index + " 個，共 " + count + " 個）\n" + "已處理 " +
         (known ? rows + "／" + total : rows) + " 筆";
}

}  // namespace

TTablesProgressDialog::TTablesProgressDialog(TKind kind, QWidget* parent)
    : QProgressDialog(parent), kind_(kind), cancel_(new QPushButton(this)) {
  setObjectName("TablesProgressDialog");
  setWindowTitle(kind == tkExport ? Text("Export tables", u"匯出資料表")
                                  : Text("Import tables", u"匯入資料表"));
  cancel_->setObjectName("btnCancel");
  cancel_->setText(Text("Cancel", u"取消"));
  cancel_->setAccessibleName(cancel_->text());
  setCancelButton(cancel_);
  setMinimumWidth(kMinimumWidth);
  setMinimumDuration(500);
  setAutoReset(false);
  setAutoClose(false);
  if (auto* bar = findChild<QProgressBar*>()) {
    bar->setObjectName("barRows");
    bar->setAccessibleName(Text("Rows done", u"已處理的資料列"));
  }
  setAccessibleName(windowTitle());
}

void TTablesProgressDialog::ShowProgress(const tables::TArchiveProgress& progress) {
  setLabelText(Label(kind_, progress));
  if (progress.TableRows >= 0) {
    const int whole = static_cast<int>(std::min<int64_t>(progress.TableRows, INT32_MAX));
    setRange(0, std::max(whole, 1));
    setValue(whole == 0 ? 1 : static_cast<int>(std::min<int64_t>(progress.Rows, whole)));
  } else {
    setRange(0, 0);  // a moving bar: the file does not say how many rows follow
    setValue(0);
  }
}

void TTablesProgressDialog::reject() {
  cancel();
}

tables::TProgressEvent TTablesProgressDialog::ProgressEvent() {
  return [this](const tables::TArchiveProgress& progress) {
    ShowProgress(progress);
    QCoreApplication::processEvents();
    return !wasCanceled();
  };
}

}  // namespace mv
