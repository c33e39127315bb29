#include "common/forms/date_range_setter_form.h"

#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>

#include "common/dates/date_range_setter.h"
#include "common/forms/date_range_add_form.h"
#include "common/forms/date_range_form_link.h"
#include "common/frame/errors.h"
#include "common/settings/user_preference.h"
#include "common/text/error_texts.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "platform/codepage/codepage.h"
#include "platform/dialogs/dialogs.h"
#include "platform/qt/fixed_layout.h"
#include "platform/system/machine.h"

namespace mv {
namespace {

constexpr int kRowHeight = 13;
const QColor kLockedColor(128, 128, 128);

// The rows of the preset list: the row filled, its text at the row's left and top edge, grey for
// a locked preset.
class PresetRowDelegate : public QStyledItemDelegate {
 public:
  PresetRowDelegate(const TFmDateRangeSetter& form, int rowHeight)
      : QStyledItemDelegate(form.ListBox1), form_(form), rowHeight_(rowHeight) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->fillRect(option.rect,
                      option.palette.brush(selected ? QPalette::Highlight : QPalette::Base));
    const QColor normal =
        option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    painter->setPen(Locked(index.row()) ? kLockedColor : normal);
    painter->setFont(option.font);
    painter->drawText(option.rect, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                      index.data().toString());
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {option.rect.width(), rowHeight_};
  }

 private:
  bool Locked(int row) const {
    const TDateRangeSetter* setter = form_.Setter;
    return setter != nullptr && row >= 0 && row < setter->Count() &&
           setter->GetDateParam(row)->Locked;
  }

  const TFmDateRangeSetter& form_;
  int rowHeight_;
};

// A message with no icon and one OK button under the application's title.
void ShowPlainMessage(const std::u16string& text) {
  dialogs::DialogRequest request;
  request.kind = dialogs::mtCustom;
  request.caption = codepage::ToWide(sys::ApplicationTitle(), codepage::SystemCodePage());
  request.text = text;
  dialogs::ShowDialog(request);
}

QPushButton* MakeButton(QWidget* parent, const char* name, const QRect& design, double ratio) {
  auto* button = new QPushButton(parent);
  button->setObjectName(QLatin1String(name));
  qt::PlaceScaled(*button, design, ratio);
  return button;
}

}  // namespace

TFmDateRangeSetter::TFmDateRangeSetter(QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      Panel1(new QFrame(this)),
      ListBox1(new QListWidget(Panel1)),
      numberKeys_(new TNumberKeyFilter(this)) {
  setObjectName(QStringLiteral("FmDateRangeSetter"));
  const double ratio = qt::DesignScale();
  qt::FixFormScaled(*this, 194, 205, 11, ratio);
  Panel1->setObjectName(QStringLiteral("Panel1"));
  qt::PlaceScaled(*Panel1, {0, 0, 194, 205}, ratio);
  ListBox1->setObjectName(QStringLiteral("ListBox1"));
  ListBox1->setAccessibleName(QStringLiteral("Periods"));
  ListBox1->setUniformItemSizes(true);
  ListBox1->setItemDelegate(new PresetRowDelegate(*this, qt::ScaledPixels(kRowHeight, ratio)));
  qt::PlaceScaled(*ListBox1, {4, 8, 101, 193}, ratio);
  ButtonAdd = MakeButton(Panel1, "ButtonAdd", {112, 8, 73, 25}, ratio);
  ButtonDelete = MakeButton(Panel1, "ButtonDelete", {112, 104, 73, 25}, ratio);
  Button1 = MakeButton(Panel1, "Button1", {112, 144, 73, 25}, ratio);
  Button4 = MakeButton(Panel1, "Button4", {112, 172, 73, 25}, ratio);
  Button4->setDefault(true);

  connect(ListBox1, &QListWidget::currentRowChanged, this, &TFmDateRangeSetter::ListBox1Click);
  connect(ListBox1, &QListWidget::itemClicked, this,
          [this] { ListBox1Click(ListBox1->currentRow()); });
  connect(ListBox1, &QListWidget::itemDoubleClicked, this, &TFmDateRangeSetter::ListBox1DblClick);
  connect(ButtonAdd, &QPushButton::clicked, this, &TFmDateRangeSetter::ButtonAddClick);
  connect(ButtonDelete, &QPushButton::clicked, this, &TFmDateRangeSetter::ButtonDeleteClick);
  connect(Button1, &QPushButton::clicked, this, &TFmDateRangeSetter::Button1Click);
  connect(Button4, &QPushButton::clicked, this, &TFmDateRangeSetter::ListBox1DblClick);

  captions_ = std::make_unique<TCaptionHandler>(captionTarget_);
  captions_->AddCaption("FmDateRangeSetter", u"Date Period Preset", u"日期時段預設");
  captions_->AddCaption("ButtonAdd", u"&Add", u"新增(&A)");
  captions_->AddCaption("ButtonDelete", u"&Delete", u"刪除(&D)");
  captions_->AddCaption("Button1", u"&Cancel", u"取消(&C)");
  captions_->AddCaption("Button4", u"&OK", u"確定(&O)");
  for (QPushButton* button : {ButtonAdd, ButtonDelete, Button1, Button4})
    button->setAccessibleName(button->text().remove(QLatin1Char('&')));
}

TFmDateRangeSetter::~TFmDateRangeSetter() = default;

void TFmDateRangeSetter::ListBox1Click(int row) {
  const bool valid = Setter != nullptr && row >= 0 && row < Setter->Count();
  ButtonDelete->setEnabled(valid && !Setter->GetDateParam(row)->Locked);
}

void TFmDateRangeSetter::ListBox1DblClick() {
  const int row = ListBox1->currentRow();
  if (Setter != nullptr && row >= 0 && row < Setter->Count()) {
    Link->Selection = Setter->GetDateParam(row);
    if (TUI_Link* caller = Link->Caller()) {
      caller->UpdateSelection(row);
      caller->NotifyChanged();
    }
  }
  done(QDialog::Accepted);
}

void TFmDateRangeSetter::Button1Click() {
  done(QDialog::Accepted);
}

void TFmDateRangeSetter::ButtonAddClick() {
  TFmDateRangeAdd add;
  const QScreen* screen = ButtonAdd->screen();
  add.move(PlaceAddPopup(ButtonAdd->mapToGlobal(QPoint(0, 0)), add.size(),
                         screen != nullptr ? screen->geometry() : QRect()));
  if (add.exec() != QDialog::Accepted || Setter == nullptr) return;
  int count = 0;
  try {
    count = add.Count();
  } catch (const EConvertError& error) {
    ShowErrorBox(codepage::ToWide(ErrorMsg(error), codepage::UserCodePage()));
    return;
  }
  Link->ShowSelection(Setter->CreateDateParam(count, add.Unit(), false));
}

void TFmDateRangeSetter::ButtonDeleteClick() {
  const int row = ListBox1->currentRow();
  if (Setter == nullptr || row < 0 || row >= Setter->Count()) return;
  TDateParam* param = Setter->GetDateParam(row);
  if (param->Locked) return;
  if (TUI_Link* caller = Link->Caller(); caller != nullptr && caller->Selection == param)
    caller->Selection = nullptr;
  Setter->DeleteDateParamIndex(row);
  // The first row has none above it: nothing is highlighted then, and Delete is disabled.
  ListBox1->setCurrentRow(row - 1);
  ListBox1Click(row - 1);
}

bool TFmDateRangeSetter::FormCloseQuery() {
  if (Setter != nullptr) SaveUserPreference(kPeriodPresetKey, Setter->GetUserDefined());
  TUI_Link* caller = Link != nullptr ? Link->Caller() : nullptr;
  if (caller == nullptr) {
    if (Link != nullptr) Link->CallerLink = nullptr;
    return true;
  }
  if (caller->Selection == nullptr) {
    ShowPlainMessage(LangChanger().CStrW("Please select a period", "請選擇時段"));
    return false;
  }
  Link->CallerLink = nullptr;
  return true;
}

void TFmDateRangeSetter::Edit1KeyPress(QWidget& field) {
  field.installEventFilter(numberKeys_);
}

void TFmDateRangeSetter::done(int result) {
  if (FormCloseQuery()) QDialog::done(result);
}

void TFmDateRangeSetter::showEvent(QShowEvent* event) {
  if (const QScreen* shown = screen()) move(shown->geometry().center() - rect().center());
  QDialog::showEvent(event);
}

}  // namespace mv
