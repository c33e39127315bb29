#include "common/forms/date_range_add_form.h"

#include <QPalette>
#include <algorithm>

#include "common/dates/time_units.h"
#include "common/frame/errors.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "platform/qt/fixed_layout.h"
#include "platform/qt/qt_text.h"

namespace mv {
namespace {

constexpr int kBottomLimit = 30;
constexpr int kBottomMargin = 34;

void FillUnits(QComboBox& combo) {
  for (int unit = 0; unit < kTimeUnitCount; ++unit) {
    const std::u16string english = u" " + TimeUnitEngDesc[unit];
    combo.addItem(qt::ToQString(LangChanger().CStrW(english, TimeUnitChiDesc[unit])));
  }
  combo.setCurrentIndex(0);
}

}  // namespace

TFmDateRangeAdd::TFmDateRangeAdd(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      Panel1(new QFrame(this)),
      Edit1(new QLineEdit(Panel1)),
      UpDown1(new qt::QtUpDown(*Edit1, 1, 0x7fff, Panel1)),
      ComboBox1(new QComboBox(Panel1)),
      ButtonAdd(new QPushButton(Panel1)),
      Button1(new QPushButton(Panel1)) {
  setObjectName(QStringLiteral("FmDateRangeAdd"));
  const double ratio = qt::DesignScale();
  qt::FixFormScaled(*this, 165, 75, 11, ratio);
  Panel1->setObjectName(QStringLiteral("Panel1"));
  Panel1->setFrameStyle(QFrame::Box | QFrame::Plain);
  QPalette white = Panel1->palette();
  white.setColor(QPalette::Window, Qt::white);
  Panel1->setPalette(white);
  Panel1->setAutoFillBackground(true);
  qt::PlaceScaled(*Panel1, {0, 0, 165, 75}, ratio);

  Edit1->setObjectName(QStringLiteral("Edit1"));
  Edit1->setAccessibleName(QStringLiteral("Count"));
  qt::PlaceScaled(*Edit1, {8, 8, 57, 21}, ratio);
  UpDown1->setObjectName(QStringLiteral("UpDown1"));
  qt::PlaceScaled(*UpDown1, {65, 8, 15, 21}, ratio);
  ComboBox1->setObjectName(QStringLiteral("ComboBox1"));
  ComboBox1->setAccessibleName(QStringLiteral("Unit"));
  qt::PlaceScaled(*ComboBox1, {84, 8, 73, 21}, ratio);
  FillUnits(*ComboBox1);
  ButtonAdd->setObjectName(QStringLiteral("ButtonAdd"));
  qt::PlaceScaled(*ButtonAdd, {84, 40, 73, 25}, ratio);
  Button1->setObjectName(QStringLiteral("Button1"));
  qt::PlaceScaled(*Button1, {4, 40, 73, 25}, ratio);
  ButtonAdd->setDefault(true);  // Enter in the count adds
  connect(ButtonAdd, &QPushButton::clicked, this, &QDialog::accept);
  connect(Button1, &QPushButton::clicked, this, &QDialog::reject);
  setTabOrder(Edit1, ComboBox1);
  setTabOrder(ComboBox1, ButtonAdd);
  setTabOrder(ButtonAdd, Button1);

  captions_ = std::make_unique<TCaptionHandler>(captionTarget_);
  captions_->AddCaption("ButtonAdd", u"&Add", u"新增(&A)");
  captions_->AddCaption("Button1", u"&Cancel", u"取消(&C)");
  for (QPushButton* button : {ButtonAdd, Button1})
    button->setAccessibleName(button->text().remove(QLatin1Char('&')));
}

TFmDateRangeAdd::~TFmDateRangeAdd() = default;

int TFmDateRangeAdd::Count() const {
  // Narrow text in the user's code page, as every conversion error of the library names it.
  return StrToInt(codepage::FromWide(Edit1->text().toStdU16String(), codepage::UserCodePage()));
}

TTimeUnit TFmDateRangeAdd::Unit() const {
  return static_cast<TTimeUnit>(std::max(0, ComboBox1->currentIndex()));
}

QPoint PlaceAddPopup(QPoint anchor, QSize size, const QRect& screen) {
  const int screenRight = screen.x() + screen.width();
  const int screenBottom = screen.y() + screen.height();
  int left = anchor.x();
  int top = anchor.y();
  if (left + size.width() > screenRight) left = screenRight - size.width();
  if (top + size.height() + kBottomLimit > screenBottom)
    top = screenBottom - size.height() - kBottomMargin;
  return {std::max(left, screen.x()), std::max(top, screen.y())};
}

}  // namespace mv
