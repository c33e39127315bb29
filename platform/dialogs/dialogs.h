// The one way every message box, confirmation and question of the library reaches the user.
// A host installs a provider (the Qt one in a desktop program); the default provider, used by
// console programs, writes the box to standard error and answers with the default button. Tests
// install a RecordingDialogProvider and check what would have been shown.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace mv::dialogs {

// The kind of a box, which decides its icon.
enum TMsgDlgType { mtWarning, mtError, mtInformation, mtConfirmation, mtCustom };

// The buttons of a box, and the answer: the button that closed it.
enum TMsgDlgBtn {
  mbYes,
  mbNo,
  mbOK,
  mbCancel,
  mbAbort,
  mbRetry,
  mbIgnore,
  mbAll,
  mbNoToAll,
  mbYesToAll,
  mbHelp
};

// The shape of the mouse cursor over the program's windows, numbered as the classic toolkit
// numbers its cursors. crDefault lets each window show its own cursor.
using TCursor = int16_t;
inline constexpr TCursor crDefault = 0;
inline constexpr TCursor crArrow = -2;
inline constexpr TCursor crHourGlass = -11;

// A set of buttons, one bit per TMsgDlgBtn.
class TMsgDlgButtons {
 public:
  constexpr TMsgDlgButtons() = default;
  constexpr TMsgDlgButtons(std::initializer_list<TMsgDlgBtn> buttons) {
    for (TMsgDlgBtn b : buttons) bits_ |= Bit(b);
  }
  constexpr bool Contains(TMsgDlgBtn b) const { return (bits_ & Bit(b)) != 0; }
  constexpr bool Empty() const { return bits_ == 0; }
  // The buttons in their usual order (Yes, No, OK, Cancel, ...).
  std::vector<TMsgDlgBtn> List() const;
  constexpr bool operator==(const TMsgDlgButtons&) const = default;

 private:
  static constexpr uint16_t Bit(TMsgDlgBtn b) { return static_cast<uint16_t>(1u << b); }
  uint16_t bits_ = 0;
};

// The English label of a button ("OK", "Cancel", "No to All" ...).
const char* ButtonName(TMsgDlgBtn button);
// The English title of a kind of box ("Warning", "Error", "Information", "Confirm", "").
const char* KindName(TMsgDlgType kind);

// Everything a provider needs to show one box. Texts are UTF-16.
struct DialogRequest {
  TMsgDlgType kind = mtInformation;
  std::u16string caption;
  std::u16string text;
  TMsgDlgButtons buttons{mbOK};
  TMsgDlgBtn defaultButton = mbOK;
};

// A question for one line of text. `value` is the text shown first and, when the user accepts,
// the text entered; at most `maxLength` characters can be entered (0 = no limit).
struct InputQueryRequest {
  std::u16string caption;
  std::u16string prompt;
  std::u16string value;
  int maxLength = 0;
};

// A message dialog that has been made but not shown: the caller may scale it, then show it.
class TMsgDialog {
 public:
  virtual ~TMsgDialog() = default;
  // What the dialog will show.
  virtual const DialogRequest& Request() const = 0;
  // Scales the dialog's size and fonts by numerator / denominator (96 -> screen DPI).
  virtual void ScaleBy(int numerator, int denominator) = 0;
  // Shows the dialog modally and returns the button that closed it.
  virtual TMsgDlgBtn ShowModal() = 0;
};

class DialogProvider {
 public:
  virtual ~DialogProvider() = default;
  // Shows the box modally and returns the button that closed it.
  virtual TMsgDlgBtn Show(const DialogRequest& request) = 0;
  // Makes the box without showing it.
  virtual std::unique_ptr<TMsgDialog> Create(const DialogRequest& request) = 0;
  // Asks for one line of text; true (and `request.value` set) when the user accepts.
  virtual bool InputQuery(InputQueryRequest& request) = 0;
  // Dots per inch of the screen the dialogs appear on.
  virtual int ScreenDpi() const { return 96; }
  // The cursor shown over every window of the program, and changing it. A provider without a
  // screen (the console one) keeps nothing: it always answers crDefault.
  virtual TCursor ScreenCursor() const { return crDefault; }
  virtual void SetScreenCursor(TCursor /*cursor*/) {}
};

// Writes "caption: text [buttons]" in UTF-8 to standard error and answers the default button;
// an input query is written the same way and answered with "cancel" (false, value unchanged).
class ConsoleDialogProvider : public DialogProvider {
 public:
  TMsgDlgBtn Show(const DialogRequest& request) override;
  std::unique_ptr<TMsgDialog> Create(const DialogRequest& request) override;
  bool InputQuery(InputQueryRequest& request) override;
};

// Keeps every request; answers with queued answers first, then with the default button. Input
// queries are kept too and answered from their own queue (nothing queued: cancel). Dialogs made
// by Create are recorded when they are shown, with the scale last applied.
class RecordingDialogProvider : public DialogProvider {
 public:
  TMsgDlgBtn Show(const DialogRequest& request) override;
  std::unique_ptr<TMsgDialog> Create(const DialogRequest& request) override;
  bool InputQuery(InputQueryRequest& request) override;

  void QueueAnswer(TMsgDlgBtn answer) { answers_.push_back(answer); }
  // The next input query is accepted with `value` (or cancelled when `accept` is false).
  void QueueInput(bool accept, std::u16string value = {}) {
    inputs_.emplace_back(accept, std::move(value));
  }
  const std::vector<DialogRequest>& Requests() const { return requests_; }
  const std::vector<InputQueryRequest>& InputRequests() const { return inputRequests_; }
  void Clear() {
    requests_.clear();
    inputRequests_.clear();
  }
  void SetScreenDpi(int dpi) { dpi_ = dpi; }
  int ScreenDpi() const override { return dpi_; }
  // Keeps the cursor, and every cursor set, in order.
  TCursor ScreenCursor() const override { return cursor_; }
  void SetScreenCursor(TCursor cursor) override {
    cursor_ = cursor;
    cursors_.push_back(cursor);
  }
  const std::vector<TCursor>& CursorsSet() const { return cursors_; }

 private:
  std::vector<DialogRequest> requests_;
  std::deque<TMsgDlgBtn> answers_;
  std::vector<InputQueryRequest> inputRequests_;
  std::deque<std::pair<bool, std::u16string>> inputs_;
  int dpi_ = 96;
  TCursor cursor_ = crDefault;
  std::vector<TCursor> cursors_;
};

// A dialog made by a provider that has no forms of its own: showing it asks the provider.
class TProviderMsgDialog : public TMsgDialog {
 public:
  TProviderMsgDialog(DialogProvider& provider, DialogRequest request)
      : provider_(provider), request_(std::move(request)) {}
  const DialogRequest& Request() const override { return request_; }
  void ScaleBy(int numerator, int denominator) override;
  TMsgDlgBtn ShowModal() override { return provider_.Show(request_); }
  // The scale applied so far, as numerator / denominator (1 / 1 at first).
  int ScaleNumerator() const { return numerator_; }
  int ScaleDenominator() const { return denominator_; }

 private:
  DialogProvider& provider_;
  DialogRequest request_;
  int numerator_ = 1;
  int denominator_ = 1;
};

// The provider in use (the console provider until a host installs another).
DialogProvider& Provider();
// Installs `provider` (not owned; nullptr puts the console provider back) and returns the one
// that was installed before.
DialogProvider* SetProvider(DialogProvider* provider);

// Installs a provider for the lifetime of the object, then puts the previous one back.
class ScopedProvider {
 public:
  explicit ScopedProvider(DialogProvider& provider) : previous_(SetProvider(&provider)) {}
  ~ScopedProvider() { SetProvider(previous_); }
  ScopedProvider(const ScopedProvider&) = delete;
  ScopedProvider& operator=(const ScopedProvider&) = delete;

 private:
  DialogProvider* previous_;
};

// Shows a box through the current provider.
TMsgDlgBtn ShowDialog(const DialogRequest& request);

}  // namespace mv::dialogs
