// The one way every message box, confirmation and question of the library reaches the user.
// A host installs a provider (the Qt one in a desktop program); the default provider, used by
// console programs, writes the box to standard error and answers with the default button. Tests
// install a RecordingDialogProvider and check what would have been shown.
#pragma once

#include <cstdint>
#include <deque>
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

class DialogProvider {
 public:
  virtual ~DialogProvider() = default;
  // Shows the box modally and returns the button that closed it.
  virtual TMsgDlgBtn Show(const DialogRequest& request) = 0;
};

// Writes "caption: text [buttons]" in UTF-8 to standard error and answers the default button.
class ConsoleDialogProvider : public DialogProvider {
 public:
  TMsgDlgBtn Show(const DialogRequest& request) override;
};

// Keeps every request; answers with queued answers first, then with the default button.
class RecordingDialogProvider : public DialogProvider {
 public:
  TMsgDlgBtn Show(const DialogRequest& request) override;
  void QueueAnswer(TMsgDlgBtn answer) { answers_.push_back(answer); }
  const std::vector<DialogRequest>& Requests() const { return requests_; }
  void Clear() { requests_.clear(); }

 private:
  std::vector<DialogRequest> requests_;
  std::deque<TMsgDlgBtn> answers_;
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
