// The displays of a record count: a label beside a grid, a window's caption and the shared status
// panel. Each writes a count into its text control (platform/controls/text_control.h); the text is
// UTF-16 and the word "records" / "記錄" follows the language changer's current language.
#pragma once

#include <memory>
#include <string>

#include "platform/controls/text_control.h"

namespace mv {

// "records" or "記錄" (UTF-16) by the language changer's current language; "记录" in language 3.
[[nodiscard]] std::u16string RecordsWord();

// A display of a count on one control, which it shares but does not own the widget of. Made
// without a control (nullptr) it shows nothing.
class TShowObject {
 public:
  // BaseCaption := the control's text as it is now (empty without a control).
  explicit TShowObject(std::shared_ptr<controls::TTextControl> control);
  virtual ~TShowObject() = default;
  TShowObject(const TShowObject&) = delete;
  TShowObject& operator=(const TShowObject&) = delete;

  // Writes `count` into the control's text; nothing without a control.
  virtual void Show(int count) = 0;
  // BaseCaption := the control's current text, so that a caption the screen changed becomes the
  // one the count follows.
  virtual void Update();

  const std::shared_ptr<controls::TTextControl>& Control() const { return control_; }
  const std::u16string& BaseCaption() const { return baseCaption_; }

 protected:
  // BaseCaption followed by " - (count word)", the form of a label and a window caption.
  void ShowAfterCaption(int count);

 private:
  std::shared_ptr<controls::TTextControl> control_;
  std::u16string baseCaption_;
};

// A label: "Inbox" reads "Inbox - (25 records)".
class TShowLabel : public TShowObject {
 public:
  using TShowObject::TShowObject;
  void Show(int count) override { ShowAfterCaption(count); }
};

// A window's caption: "Inbox" reads "Inbox - (25 records)".
class TShowForm : public TShowObject {
 public:
  using TShowObject::TShowObject;
  void Show(int count) override { ShowAfterCaption(count); }
};

// A status panel: the count alone, "25 records"; its own text is not used.
class TShowPanel : public TShowObject {
 public:
  using TShowObject::TShowObject;
  void Show(int count) override;
};

}  // namespace mv
