// The preview's printing, export and closing.
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>

#include "common/forms/preview_dlg.h"
#include "common/forms/preview_rules.h"
#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/text/caption_handler.h"
#include "common/text/lang_changer.h"
#include "common/text/message_dialogs.h"
#include "platform/codepage/codepage.h"
#include "platform/files/paths.h"
#include "platform/ini/ini_file.h"
#include "platform/qt/qt_text.h"
#include "platform/report/composite_report.h"
#include "platform/report/preview_control.h"
#include "platform/report/preview_handler.h"
#include "platform/report/print_job.h"
#include "platform/report/printers.h"

namespace mv::forms {
namespace {

// The report whose page gets the orientation: the single report, or a composite's first one.
report::TReport* PageOwner(report::TReport& shown) {
  if (auto* composite = qobject_cast<report::TCompositeReport*>(&shown)) {
    return composite->Reports().empty() ? nullptr : composite->Reports().front();
  }
  return &shown;
}

}  // namespace

// Print: all pages, one copy, the default printer in the orientation and duplex of the printer
// settings the dialog keeps.
void TPreviewDlg::btnPrintClick() {
  if (report_ == nullptr) return;
  TPrintChoice choice = printChoice_;
  choice.FromPage = 1;
  choice.ToPage = report_->PageCount();
  choice.Copies = 1;
  choice.PrinterIndex = -1;
  PrintWith(choice);
}

// Print setup: the print dialog, then the chosen pages, copies and printer in the report page's
// own orientation. The chosen printer's settings stay with the dialog for the next print.
void TPreviewDlg::btnPageSetupClick() {
  if (report_ == nullptr) return;
  TPrintChoice choice = printChoice_;
  if (!runPrintDialog_(this, choice)) return;
  printChoice_.PrinterIndex = choice.PrinterIndex;
  printChoice_.Duplex = choice.Duplex;
  printChoice_.Orientation = choice.Orientation;
  if (report::TReport* owner = PageOwner(*report_)) choice.Orientation = owner->Orientation();
  if (!choice.PageRange) {
    choice.FromPage = 1;
    choice.ToPage = report_->PageCount();
  }
  PrintWith(choice);
}

// Prints with the page range, copies, printer and orientation of `choice`. Meanwhile the print
// button and the close button are disabled, so the window cannot close while pages go out.
void TPreviewDlg::PrintWith(const TPrintChoice& choice) {
  report::TReport& shown = *report_;
  btnPrint_->setEnabled(false);
  const bool closable = btnClose_->isEnabledTo(this);
  btnClose_->setEnabled(false);
  if (report::TReport* owner = PageOwner(shown)) owner->SetOrientation(choice.Orientation);
  shown.PrintSettings() = {.FirstPage = choice.FromPage,
                           .LastPage = choice.ToPage,
                           .Copies = choice.Copies,
                           .PrinterIndex = choice.PrinterIndex,
                           .Duplex = choice.Duplex};
  // The window repaints between pages.
  const QMetaObject::Connection pump = connect(&shown, &report::TReport::pagePrinted, this,
                                               [] { QCoreApplication::processEvents(); });
  const bool printed = report::PrintReport(shown, report::Printers());
  disconnect(pump);
  btnClose_->setEnabled(closable);
  btnPrint_->setEnabled(true);
  if (printed) {
    reportPrinted_ = true;
  } else {
    Msg(codepage::FromWide(windowTitle().toStdU16String(), codepage::UserCodePage()),
        NoPrinterText(captions_->Language()), dialogs::mtError);
  }
}

QString TPreviewDlg::ExportFolder() const {
  const std::string fallback = ServerPath + "EXPORT" + files::kPathDelim;
  const ini::TIniFile config(ServerPath + Global_Merovan_Ini);
  const std::string folder = config.ReadString("Advance", "ExportPath", fallback);
  return qt::ToQString(codepage::ToWide(folder, codepage::SystemCodePage()));
}

void TPreviewDlg::btnExportClick() {
  if (report_ == nullptr) return;
  const bool english = captions_->Language() == kLangEnglish;
  const TSaveRequest request{english ? QStringLiteral("Export") : QStringLiteral("匯出"),
                             ExportFolder(), QStringLiteral("Portable Document Format (*.PDF)"),
                             QStringLiteral("pdf")};
  const QString file = chooseFile_(this, request);
  if (file.isEmpty()) return;
  if (!report::ExportPdf(*report_, file)) {
    const std::u16string text =
        (english ? u"Unable to write the file " : u"無法寫入檔案 ") + file.toStdU16String();
    Msg(codepage::FromWide(windowTitle().toStdU16String(), codepage::UserCodePage()), text,
        dialogs::mtError);
  }
}

void TPreviewDlg::btnCloseClick() {
  setEnabled(false);
  done(1);
}

// The close button's own state decides, not the window's: btnCloseClick disables the window
// before it closes.
bool TPreviewDlg::CanClose() const {
  return btnClose_->isEnabledTo(this);
}

void TPreviewDlg::closeEvent(QCloseEvent* event) {
  if (!CanClose()) {
    event->ignore();
    return;
  }
  QDialog::closeEvent(event);
}

void TPreviewDlg::done(int result) {
  if (!CanClose()) return;
  CloseSteps();
  QDialog::done(result);
}

void TPreviewDlg::CloseSteps() {
  if (closed_) return;
  closed_ = true;
  Timer1_->stop();
  if (report_ != nullptr) disconnect(report_, nullptr, this, nullptr);
  QRPreview_->SetReport(nullptr);
  currentReport_ = nullptr;
  ReSolveAdoFPU();
}

bool RunQtPrintDialog(QWidget* parent, TPrintChoice& choice) {
  std::unique_ptr<QPrinter> printer = report::Printers().Open(choice.PrinterIndex);
  if (printer == nullptr) return false;
  printer->setCollateCopies(true);
  printer->setCopyCount(choice.Copies);
  printer->setFromTo(choice.FromPage, choice.ToPage);
  printer->setPageOrientation(choice.Orientation);
  QPrintDialog dialog(printer.get(), parent);
  dialog.setMinMax(choice.MinPage, choice.MaxPage);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
  dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, true);
  if (dialog.exec() != QDialog::Accepted) return false;
  choice.PageRange = printer->printRange() == QPrinter::PageRange;
  choice.FromPage = printer->fromPage();
  choice.ToPage = printer->toPage();
  choice.Copies = printer->copyCount();
  choice.PrinterIndex =
      static_cast<int>(report::Printers().Names().indexOf(printer->printerName()));
  choice.Orientation = printer->pageLayout().orientation();
  switch (printer->duplex()) {
    case QPrinter::DuplexLongSide:
      choice.Duplex = report::dpLongSide;
      break;
    case QPrinter::DuplexShortSide:
      choice.Duplex = report::dpShortSide;
      break;
    default:
      choice.Duplex = report::dpNone;
  }
  return true;
}

QString ChooseFileWithQt(QWidget* parent, const TSaveRequest& request) {
  QFileDialog dialog(parent, request.Caption, request.Directory, request.Filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(request.DefaultSuffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front();
}

void RegisterPreviewDialog() {
  report::SetPreviewHandler([](report::TReport& report, bool modal) {
    auto* dialog = new TPreviewDlg(nullptr, &report);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (modal) {
      dialog->exec();
    } else {
      dialog->show();
    }
  });
}

namespace {
// The start routines register the preview through the frame once this library is loaded.
[[maybe_unused]] const bool kRegistered =
    (SetPrintPreviewRegistration(RegisterPreviewDialog), true);
}  // namespace

}  // namespace mv::forms
