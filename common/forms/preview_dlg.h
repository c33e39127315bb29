// The print preview every form of the client shows for a report: pages appear while the report
// is being generated; the user pages (buttons, the page field, page up / down / home / end),
// zooms (the zoom field, the zoom list), prints with or without the print dialog and exports a
// PDF file. Captions follow the caption handler's language (English / Chinese).
#pragma once

#include <QDialog>
#include <QPageLayout>
#include <QPointer>
#include <functional>
#include <memory>

#include "platform/report/report.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStatusBar;
class QTimer;
class QToolButton;

namespace mv {
class TCaptionHandler;
namespace qt {
class QtCaptionTarget;
}
namespace report {
class TPreviewControl;
}
}  // namespace mv

namespace mv::forms {

// What the print dialog shows and what the user chose in it; the dialog keeps the chosen
// printer, duplex and orientation as its printer settings. Pages are 1-based.
struct TPrintChoice {
  int MinPage = 1;
  int MaxPage = 1;
  int FromPage = 1;
  int ToPage = 1;
  bool PageRange = false;  // the user chose pages FromPage ..= ToPage (else all pages)
  int Copies = 1;
  int PrinterIndex = -1;  // in report::Printers(); -1 the default printer
  report::TDuplex Duplex = report::dpNone;
  QPageLayout::Orientation Orientation = QPageLayout::Portrait;
};

// The save dialog's question: caption, first folder, filter, default extension (UTF-16).
struct TSaveRequest {
  QString Caption;
  QString Directory;
  QString Filter;
  QString DefaultSuffix;
};

class TPreviewDlg : public QDialog {
  Q_OBJECT

 public:
  // Runs the print dialog over `choice`; true when the user confirmed (choice then holds it).
  using TPrintDialogRunner = std::function<bool(QWidget* parent, TPrintChoice& choice)>;
  // Asks for the file to save; the chosen path (UTF-16), or empty when cancelled.
  using TFileChooser = std::function<QString(QWidget* parent, const TSaveRequest& request)>;

  // A preview of `report` (not owned; it must outlive the dialog or be destroyed only after it
  // closed); nullptr gives an empty preview captioned "Untitled Report". The report is started
  // when it has not been generated yet.
  TPreviewDlg(QWidget* owner, report::TReport* report);
  ~TPreviewDlg() override;

  // Replace the print dialog and the save dialog (tests, hosts with their own).
  void SetPrintDialogRunner(TPrintDialogRunner runner) { runPrintDialog_ = std::move(runner); }
  void SetFileChooser(TFileChooser chooser) { chooseFile_ = std::move(chooser); }

  // Moves as the navigation key code says (33 page up, 34 page down, 35 end, 36 home, 0 none),
  // then shows the page number in the page field and "Page n of total" in the status bar.
  void GotoPage(int key);
  // Next enabled exactly when a page follows the current one, Prior when one precedes it.
  void UpdateButtons();

  // The single report shown (nullptr for a composite report or none).
  report::TReport* CurrentReport() const { return currentReport_; }
  // The print dialog's state: the page range and copies it offers, the printer chosen.
  const TPrintChoice& PrintChoice() const { return printChoice_; }
  // True once a print of any preview finished since the last preview was created.
  static bool ReportPrinted() { return reportPrinted_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 public slots:
  void done(int result) override;

 private:
  void BuildControls();
  QWidget* BuildToolBar();
  void BuildStatusBar();
  void AddCaptions();
  void ShowLanguage(uint8_t language);
  uint8_t Language() const;

  void Timer1Timer();
  void ReportProgress(int percent);
  void PageAvailable();
  void btnPrintClick();
  void btnPageSetupClick();
  void btnExportClick();
  void btnCloseClick();
  void btnZoomClick();
  void cbxZoomChange(int index);
  void edtPageExit();
  void edtZoomExit();
  bool edtPageKey(QKeyEvent& key);
  bool edtZoomKey(QKeyEvent& key);
  void ShowZoom();
  void ApplyInitialZoom();
  void SetStatusText(const std::u16string& text);

  void PrintWith(const TPrintChoice& choice);
  bool CanClose() const;
  void CloseSteps();
  QString ExportFolder() const;

  QPointer<report::TReport> report_;
  QPointer<report::TReport> currentReport_;
  report::TPreviewControl* QRPreview_ = nullptr;
  QLabel* lblPage_ = nullptr;
  QLineEdit* edtPage_ = nullptr;
  QToolButton* btnPrior_ = nullptr;
  QToolButton* btnNext_ = nullptr;
  QLabel* lblZoom_ = nullptr;
  QLineEdit* edtZoom_ = nullptr;
  QComboBox* cbxZoom_ = nullptr;
  QToolButton* btnZoom_ = nullptr;
  QPushButton* btnPrint_ = nullptr;
  QPushButton* btnPageSetup_ = nullptr;
  QPushButton* btnClose_ = nullptr;
  QPushButton* btnExport_ = nullptr;
  QStatusBar* StatusBar_ = nullptr;
  QProgressBar* ProgressBar_ = nullptr;
  QLabel* statusText_ = nullptr;
  QTimer* Timer1_ = nullptr;

  std::unique_ptr<qt::QtCaptionTarget> captionTarget_;
  std::unique_ptr<TCaptionHandler> captions_;
  int languageListener_ = 0;
  TPrintChoice printChoice_;
  TPrintDialogRunner runPrintDialog_;
  TFileChooser chooseFile_;
  // Set after a print has finished; cleared when a preview is created.
  static inline bool reportPrinted_ = false;
  bool firstPagePending_ = true;
  bool closed_ = false;
};

// The print dialog and the save dialog of the toolkit, as the preview uses them by default.
bool RunQtPrintDialog(QWidget* parent, TPrintChoice& choice);
QString ChooseFileWithQt(QWidget* parent, const TSaveRequest& request);

// Makes the preview the one reports show (report::SetPreviewHandler); the start routines do it
// through the frame's print-preview registration.
void RegisterPreviewDialog();

}  // namespace mv::forms
