// The base of the drop-down pick forms that open under an edit field: the form places itself
// below its edit or its drop-down button, starts from the edit's text and, closed with OK, writes
// the chosen value back. A value "code|name" gives the edit the half DataStyle names.
//
// The form is a Qt::Popup window: a click anywhere else closes it, and every way of closing
// (Close(), Enter, Esc, that click) runs the same close steps, so the drop-down button never
// stays down. Keys: Enter closes with OK, Esc closes without; a derived form's own controls take
// the arrows.
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <string>

#include "common/forms/pop_form_data.h"

namespace mv {

class TPopForm : public QWidget {
  Q_OBJECT

 public:
  // Called with the form and the value as narrow text (bytes of the user's code page); the
  // handler may change the text in place.
  using TOnGetSetFormDataEvent = std::function<void(TPopForm& sender, std::string& buf)>;

  // A hidden popup form owned by `owner`, whose outermost window is the main window that bounds
  // the form's position (no owner: no bound). DataStyle shGetLong.
  explicit TPopForm(QWidget* owner = nullptr);
  // A form destroyed while open releases its button; the edit keeps its text.
  ~TPopForm() override;

  TDataStyle DataStyle() const { return dataStyle_; }
  void SetDataStyle(TDataStyle style) { dataStyle_ = style; }
  // The value the form holds, UTF-16.
  const std::u16string& FormData() const { return formData_; }
  void SetFormData(std::u16string value) { formData_ = std::move(value); }
  TModalResult ModalResult() const { return modalResult_; }
  void SetModalResult(TModalResult result) { modalResult_ = result; }
  // Raised by DoGetFormData after the result is in the buffer / by DoSetFormData before the form
  // takes its starting value.
  void SetOnGetFormData(TOnGetSetFormDataEvent event) { onGetFormData_ = std::move(event); }
  void SetOnSetFormData(TOnGetSetFormDataEvent event) { onSetFormData_ = std::move(event); }

  // Keeps `button` (borrowed, nullptr: none) as the form's drop-down button and places the form
  // so that its right edge meets the button's, one pixel below it. The button becomes checkable
  // (down while the form is open; not in any exclusive group) and pressing it opens the form
  // there. A button without an accessible name is named "Open list" / "開啟清單".
  void SetSpeedButton(QToolButton* button);
  // Keeps `edit` (borrowed, nullptr: none) as the field the value comes from and goes to, and
  // places the form 4 pixels right of its left edge, one pixel below it.
  void SetSourceControl(QLineEdit* edit);
  // Moves the form's top-left corner to `point` (screen coordinates), kept inside the main
  // window's size as BoundFormPosition says.
  void SetFormPosition(QPoint point);

  // Focuses the edit (when it takes focus), hands its first kPopFormTextLimit characters as
  // narrow text to DoSetFormData (an empty text without an edit), resets the modal result,
  // presses the button and shows the form without blocking.
  void Show();
  // Closes the form: with the modal result mrOk DoGetFormData, a code-page field's text set from
  // the buffer and the edit's whole text selected; in every case the button is released.
  void Close();

 protected:
  // The value comes back: FormData cut by DataStyle, written into a Unicode edit (an edit that is
  // not a code-page field), converted to the user's code page into `buf`, then OnGetFormData.
  virtual void DoGetFormData(std::string& buf);
  // The starting value: OnSetFormData, then FormData := the edit's UTF-16 text for a Unicode
  // edit, else `buf` read in the user's code page.
  virtual void DoSetFormData(std::string& buf);

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void PlaceBelowButton();
  void FinishClose();
  bool IsUnicodeEdit() const;

  TDataStyle dataStyle_ = shGetLong;
  QPointer<QToolButton> speedButton_;
  QPointer<QLineEdit> sourceControl_;
  TOnGetSetFormDataEvent onGetFormData_;
  TOnGetSetFormDataEvent onSetFormData_;
  std::u16string formData_;
  TModalResult modalResult_ = mrNone;
  bool open_ = false;
  QMetaObject::Connection buttonClicked_;
};

}  // namespace mv
