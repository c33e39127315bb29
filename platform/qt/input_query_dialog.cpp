#include "platform/qt/input_query_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/button_captions.h"
#include "platform/qt/qt_text.h"

namespace mv::qt {
namespace {

QLineEdit* AddEdit(QDialog& dialog, const dialogs::InputQueryRequest& request) {
  auto* edit = new QLineEdit(&dialog);
  edit->setObjectName(QString::fromLatin1(kInputEditName));
  if (request.maxLength > 0) edit->setMaxLength(request.maxLength);
  edit->setText(ToQString(request.value));
  edit->selectAll();
  edit->setFocus();
  return edit;
}

QLabel* AddPrompt(QDialog& dialog, const dialogs::InputQueryRequest& request, QLineEdit* edit) {
  auto* prompt = new QLabel(&dialog);
  prompt->setObjectName(QString::fromLatin1(kInputPromptName));
  prompt->setTextFormat(Qt::PlainText);
  prompt->setText(ToQString(request.prompt));
  prompt->setBuddy(edit);
  return prompt;
}

QPushButton* AddButton(QDialogButtonBox& box, dialogs::TMsgDlgBtn button, bool english,
                       QDialogButtonBox::ButtonRole role) {
  QPushButton* widget = box.addButton(ToQString(ButtonCaption(button, english)), role);
  widget->setObjectName(QString::fromLatin1(ButtonObjectName(button)));
  return widget;
}

QDialogButtonBox* AddButtons(QDialog& dialog, bool english) {
  auto* box = new QDialogButtonBox(&dialog);
  AddButton(*box, dialogs::mbOK, english, QDialogButtonBox::AcceptRole)->setDefault(true);
  AddButton(*box, dialogs::mbCancel, english, QDialogButtonBox::RejectRole);
  QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  return box;
}

}  // namespace

std::unique_ptr<QDialog> MakeInputDialog(const dialogs::InputQueryRequest& request, bool english) {
  auto dialog = std::make_unique<QDialog>();
  dialog->setObjectName(QString::fromLatin1(kInputDialogName));
  dialog->setWindowTitle(ToQString(request.caption));
  QLineEdit* edit = AddEdit(*dialog, request);
  auto* layout = new QVBoxLayout(dialog.get());
  layout->addWidget(AddPrompt(*dialog, request, edit));
  layout->addWidget(edit);
  layout->addWidget(AddButtons(*dialog, english));
  return dialog;
}

bool RunInputDialog(QDialog& dialog, dialogs::InputQueryRequest& request) {
  if (dialog.exec() != QDialog::Accepted) return false;
  const auto* edit = dialog.findChild<QLineEdit*>(QString::fromLatin1(kInputEditName));
  request.value = edit->text().toStdU16String();
  return true;
}

}  // namespace mv::qt
