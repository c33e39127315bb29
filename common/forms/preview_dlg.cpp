#include "common/forms/preview_dlg.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "common/forms/preview_rules.h"
#include "common/frame/startup.h"
#include "common/text/caption_handler.h"
#include "common/text/lang_changer.h"
#include "platform/qt/qt_caption_target.h"
#include "platform/qt/qt_text.h"
#include "platform/report/composite_report.h"
#include "platform/report/preview_control.h"
#include "platform/report/printers.h"

namespace mv::forms {
namespace {

constexpr int kTimerInterval = 700;

}  // namespace

TPreviewDlg::TPreviewDlg(QWidget* owner, report::TReport* report)
    : QDialog(owner),
      report_(report),
      runPrintDialog_(RunQtPrintDialog),
      chooseFile_(ChooseFileWithQt) {
  setObjectName(QStringLiteral("PreviewDlg"));
  setWindowTitle(QStringLiteral("Preview"));
  BuildControls();
  captionTarget_ = std::make_unique<qt::QtCaptionTarget>(this);
  captions_ = std::make_unique<TCaptionHandler>(*captionTarget_);
  AddCaptions();
  languageListener_ =
      LangChanger().AddSwitchListener([this](uint8_t language) { ShowLanguage(language); });
  ShowLanguage(captions_->Language());

  // Attach the report; a composite one is not a current single report.
  QRPreview_->SetReport(report);
  if (report != nullptr && qobject_cast<report::TCompositeReport*>(report) == nullptr)
    currentReport_ = report;
  // The printer's orientation starts as the report page's.
  if (report != nullptr) printChoice_.Orientation = report->Orientation();
  setWindowTitle(report != nullptr ? report->Title() : QStringLiteral("Untitled Report"));

  btnPrint_->setEnabled(false);
  btnPageSetup_->setEnabled(false);
  btnExport_->setEnabled(false);
  // Closing waits for the first page; an empty preview has none to wait for.
  btnClose_->setEnabled(report == nullptr);
  if (report::Printers().Any()) Timer1_->start();

  if (QScreen* screen = QApplication::primaryScreen()) setGeometry(screen->availableGeometry());
  reportPrinted_ = false;
  firstPagePending_ = true;

  if (report != nullptr) {
    connect(report, &report::TReport::progressChanged, this, &TPreviewDlg::ReportProgress);
    connect(report, &report::TReport::pageAvailable, this, &TPreviewDlg::PageAvailable);
    if (report->Status() == report::rsReady) report->Start();
    if (report->PageCount() > 0) PageAvailable();
  }
  GotoPage(0);
}

TPreviewDlg::~TPreviewDlg() {
  LangChanger().RemoveSwitchListener(languageListener_);
  if (!closed_) CloseSteps();
}

void TPreviewDlg::BuildControls() {
  QRPreview_ = new report::TPreviewControl(this);
  QRPreview_->setObjectName(QStringLiteral("QRPreview"));
  QRPreview_->setFocusPolicy(Qt::StrongFocus);
  Timer1_ = new QTimer(this);
  Timer1_->setObjectName(QStringLiteral("Timer1"));
  Timer1_->setInterval(kTimerInterval);
  connect(Timer1_, &QTimer::timeout, this, &TPreviewDlg::Timer1Timer);
  connect(QRPreview_, &report::TPreviewControl::resized, this, [this] {
    if (cbxZoom_->currentIndex() >= 0) cbxZoomChange(cbxZoom_->currentIndex());
    ShowZoom();
  });

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(BuildToolBar());
  layout->addWidget(QRPreview_, 1);
  BuildStatusBar();
  layout->addWidget(StatusBar_);
}

QWidget* TPreviewDlg::BuildToolBar() {
  auto* bar = new QWidget(this);
  bar->setObjectName(QStringLiteral("pnlToolBar"));
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(6, 4, 6, 4);
  const auto make = [this]<typename W>(W*& widget, const char* name) {
    widget = new W(this);
    widget->setObjectName(QLatin1String(name));
    return widget;
  };
  make(lblPage_, "lblPage");
  make(edtPage_, "edtPage");
  make(btnPrior_, "btnPrior");
  make(btnNext_, "btnNext");
  make(lblZoom_, "lblZoom");
  make(edtZoom_, "edtZoom");
  make(cbxZoom_, "cbxZoom");
  make(btnZoom_, "btnZoom");
  make(btnPrint_, "btnPrint");
  make(btnPageSetup_, "btnPageSetup");
  make(btnClose_, "btnClose");
  make(btnExport_, "btnExport");
  lblPage_->setBuddy(edtPage_);
  lblZoom_->setBuddy(edtZoom_);
  edtPage_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 12);
  edtZoom_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000%")) + 12);
  edtPage_->installEventFilter(this);
  edtZoom_->installEventFilter(this);
  btnPrior_->setAutoRaise(true);
  btnNext_->setAutoRaise(true);
  btnZoom_->setAutoRaise(true);
  btnPrior_->setArrowType(Qt::LeftArrow);
  btnNext_->setArrowType(Qt::RightArrow);
  btnZoom_->setArrowType(Qt::DownArrow);
  btnZoom_->setFocusPolicy(Qt::NoFocus);
  for (std::size_t i = 0; i < kZoomItems.size(); ++i) cbxZoom_->addItem(QString());
  cbxZoom_->setCurrentIndex(-1);
  cbxZoom_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  btnClose_->setAutoDefault(false);
  btnPrint_->setAutoDefault(false);
  btnPageSetup_->setAutoDefault(false);
  btnExport_->setAutoDefault(false);

  connect(btnPrior_, &QToolButton::clicked, this, [this] { GotoPage(kKeyPageUp); });
  connect(btnNext_, &QToolButton::clicked, this, [this] { GotoPage(kKeyPageDown); });
  connect(btnZoom_, &QToolButton::clicked, this, &TPreviewDlg::btnZoomClick);
  connect(cbxZoom_, &QComboBox::activated, this, &TPreviewDlg::cbxZoomChange);
  connect(btnPrint_, &QPushButton::clicked, this, &TPreviewDlg::btnPrintClick);
  connect(btnPageSetup_, &QPushButton::clicked, this, &TPreviewDlg::btnPageSetupClick);
  connect(btnClose_, &QPushButton::clicked, this, &TPreviewDlg::btnCloseClick);
  connect(btnExport_, &QPushButton::clicked, this, &TPreviewDlg::btnExportClick);

  for (QWidget* w : std::initializer_list<QWidget*>{lblPage_, edtPage_, btnPrior_, btnNext_})
    row->addWidget(w);
  row->addSpacing(12);
  for (QWidget* w : std::initializer_list<QWidget*>{lblZoom_, edtZoom_, cbxZoom_, btnZoom_})
    row->addWidget(w);
  row->addSpacing(12);
  for (QWidget* w : std::initializer_list<QWidget*>{btnPrint_, btnPageSetup_, btnExport_})
    row->addWidget(w);
  row->addStretch(1);
  row->addWidget(btnClose_);
  return bar;
}

void TPreviewDlg::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  StatusBar_->setObjectName(QStringLiteral("StatusBar"));
  StatusBar_->setSizeGripEnabled(false);
  ProgressBar_ = new QProgressBar(StatusBar_);
  ProgressBar_->setObjectName(QStringLiteral("ProgressBar"));
  ProgressBar_->setRange(0, 100);
  ProgressBar_->setValue(0);
  ProgressBar_->setFixedWidth(160);
  ProgressBar_->setTextVisible(false);
  statusText_ = new QLabel(StatusBar_);
  statusText_->setObjectName(QStringLiteral("StatusPanel1"));
  StatusBar_->addWidget(ProgressBar_);
  StatusBar_->addWidget(statusText_, 1);
}

void TPreviewDlg::AddCaptions() {
  captions_->AddCaption("lblPage", u"Pa&ge", u"頁次(&G)");
  captions_->AddCaption("lblZoom", u"&Zoom", u"縮放(&Z)");
  captions_->AddCaption("btnPrint", u"&Print", u"列印(&P)");
  captions_->AddCaption("btnPageSetup", u"Print Set&up", u"列印設定(&U)");
  captions_->AddCaption("btnClose", u"&Close", u"關閉(&C)");
  captions_->AddCaption("btnExport", u"&Export", u"匯出(&E)");
}

uint8_t TPreviewDlg::Language() const {
  return captions_->Language();
}

// What the caption handler does not reach: the zoom list's items, the names screen readers say,
// and the status text.
void TPreviewDlg::ShowLanguage(uint8_t language) {
  const bool english = language == kLangEnglish;
  for (std::size_t i = 0; i < kZoomItems.size(); ++i) {
    const TZoomItem& item = kZoomItems[i];
    cbxZoom_->setItemText(
        static_cast<int>(i),
        qt::ToQString(ShownWide(language, english ? item.english : item.chinese)));
  }
  const auto name = [&](QWidget* w, std::u16string_view en, std::u16string_view zh) {
    w->setAccessibleName(qt::ToQString(ShownWide(language, english ? en : zh)));
  };
  name(edtPage_, u"Page", u"頁次");
  name(btnPrior_, u"Previous page", u"上一頁");
  name(btnNext_, u"Next page", u"下一頁");
  name(edtZoom_, u"Zoom", u"縮放");
  name(cbxZoom_, u"Zoom list", u"縮放清單");
  name(btnZoom_, u"Show the zoom list", u"顯示縮放清單");
  name(btnPrint_, u"Print", u"列印");
  name(btnPageSetup_, u"Print Setup", u"列印設定");
  name(btnExport_, u"Export", u"匯出");
  name(btnClose_, u"Close", u"關閉");
  name(QRPreview_, u"Page preview", u"預覽頁面");
  btnPrior_->setToolTip(btnPrior_->accessibleName());
  btnNext_->setToolTip(btnNext_->accessibleName());
  if (report_ != nullptr && report_->Status() == report::rsGenerating &&
      ProgressBar_->value() > 0) {
    ReportProgress(ProgressBar_->value());
  } else {
    GotoPage(0);
  }
}

void TPreviewDlg::SetStatusText(const std::u16string& text) {
  statusText_->setText(qt::ToQString(ShownWide(Language(), text)));
}

void TPreviewDlg::Timer1Timer() {
  if (report_ == nullptr || report_->Status() != report::rsFinished) return;
  Timer1_->stop();
  btnPrint_->setEnabled(true);
  btnPageSetup_->setEnabled(true);
  btnExport_->setEnabled(true);
  ReportProgress(100);
}

void TPreviewDlg::ReportProgress(int percent) {
  ProgressBar_->setValue(percent);
  if (percent > 0 && percent < 100) {
    SetStatusText(ProgressText(Language(), percent));
  } else {
    ProgressBar_->setValue(0);
    GotoPage(0);
  }
}

void TPreviewDlg::PageAvailable() {
  if (report_ == nullptr) return;
  QRPreview_->UpdatePage();
  if (firstPagePending_) {
    ApplyInitialZoom();
    firstPagePending_ = false;
  }
  if (report_->Status() == report::rsFinished) ReportProgress(100);
  btnClose_->setEnabled(true);
  const int count = report_->PageCount();
  printChoice_.MinPage = 1;
  printChoice_.MaxPage = count;
  printChoice_.FromPage = 1;
  printChoice_.ToPage = count;
  printChoice_.Copies = 1;
  UpdateButtons();
}

void TPreviewDlg::ApplyInitialZoom() {
  switch (report_->InitialZoom()) {
    case report::zsFitPage:
      cbxZoom_->setCurrentIndex(static_cast<int>(kZoomItems.size()) - 1);
      QRPreview_->ZoomToFit();
      break;
    case report::zsPageWidth:
      cbxZoom_->setCurrentIndex(static_cast<int>(kZoomItems.size()) - 2);
      QRPreview_->ZoomToWidth();
      break;
    case report::zsPercent:
      QRPreview_->SetZoom(report_->ZoomPercent());
      break;
  }
  ShowZoom();
}

void TPreviewDlg::GotoPage(int key) {
  const int count = QRPreview_->PageCount();
  const int current = QRPreview_->PageNumber();
  if (count > 0) {
    const int target = PageAfterKey(key, current, count);
    if (target != current) QRPreview_->SetPageNumber(target);
  }
  const int page = QRPreview_->PageNumber();
  edtPage_->setText(QString::number(page));
  if (edtPage_->hasFocus()) edtPage_->selectAll();
  SetStatusText(PageText(Language(), page, count));
  UpdateButtons();
}

void TPreviewDlg::UpdateButtons() {
  btnNext_->setEnabled(QRPreview_->PageCount() > QRPreview_->PageNumber());
  btnPrior_->setEnabled(QRPreview_->PageNumber() >= 2);
}

void TPreviewDlg::edtPageExit() {
  const int count = QRPreview_->PageCount();
  const int page = Str2Int(edtPage_->text().toStdU16String());
  if (count > 0 && page >= 1 && page <= count) QRPreview_->SetPageNumber(page);
  edtPage_->setText(QString::number(QRPreview_->PageNumber()));
  GotoPage(0);
}

bool TPreviewDlg::edtPageKey(QKeyEvent& key) {
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
    edtPageExit();
    return true;
  }
  if (key.modifiers() & ~Qt::KeypadModifier) return false;
  switch (key.key()) {
    case Qt::Key_PageUp:
      GotoPage(kKeyPageUp);
      return true;
    case Qt::Key_PageDown:
      GotoPage(kKeyPageDown);
      return true;
    case Qt::Key_End:
      GotoPage(kKeyEnd);
      return true;
    case Qt::Key_Home:
      GotoPage(kKeyHome);
      return true;
    default:
      return false;
  }
}

void TPreviewDlg::cbxZoomChange(int index) {
  if (index < 0 || index >= static_cast<int>(kZoomItems.size())) return;
  const TZoomItem& item = kZoomItems[static_cast<std::size_t>(index)];
  switch (item.kind) {
    case zkPercent:
      QRPreview_->SetZoom(item.percent);
      break;
    case zkPageWidth:
      QRPreview_->ZoomToWidth();
      break;
    case zkWholePage:
      QRPreview_->ZoomToFit();
      break;
  }
  ShowZoom();
}

void TPreviewDlg::btnZoomClick() {
  cbxZoom_->setFocus();
  cbxZoom_->showPopup();
}

void TPreviewDlg::ShowZoom() {
  const QString shown = QString::number(QRPreview_->Zoom()) + QLatin1Char('%');
  if (edtZoom_->text() != shown) edtZoom_->setText(shown);
}

void TPreviewDlg::edtZoomExit() {
  const QString text = edtZoom_->text();
  const int zoom = Str2Int(text.toStdU16String());
  if (zoom != 0 && text != QString::number(QRPreview_->Zoom())) {
    QRPreview_->SetZoom(zoom);
    cbxZoom_->setCurrentIndex(-1);
  }
  ShowZoom();
}

// Only digits reach the zoom field; every other typed character (backspace among them) is
// dropped. Keys that type nothing (arrows, Delete) still move and delete.
bool TPreviewDlg::edtZoomKey(QKeyEvent& key) {
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
    edtZoomExit();
    edtZoom_->selectAll();
    return true;
  }
  const QString text = key.text();
  if (key.key() == Qt::Key_Delete || text.isEmpty()) return false;
  return !(text.size() == 1 && text[0] >= QLatin1Char('0') && text[0] <= QLatin1Char('9'));
}

bool TPreviewDlg::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    auto& key = static_cast<QKeyEvent&>(*event);
    if (watched == edtPage_) return edtPageKey(key);
    if (watched == edtZoom_) return edtZoomKey(key);
  } else if (event->type() == QEvent::FocusOut) {
    if (watched == edtPage_) edtPageExit();
    if (watched == edtZoom_) edtZoomExit();
  }
  return QDialog::eventFilter(watched, event);
}

void TPreviewDlg::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  // The chosen zoom item follows the window ("Page Width" keeps fitting the width).
  if (cbxZoom_->currentIndex() >= 0) cbxZoomChange(cbxZoom_->currentIndex());
}

}  // namespace mv::forms
