// A window whose controls show captions that can be set by the controls' names. The language
// switch of the library sets every caption of a form through this interface; the Qt layer
// implements it over a widget tree.
#pragma once

#include <string>
#include <string_view>

namespace mv::dialogs {

class TCaptionTarget {
 public:
  virtual ~TCaptionTarget() = default;
  // Sets the caption of the control named `controlName` (its text, title or label, whichever the
  // kind of control shows); false when the window has no control of that name.
  virtual bool SetCaption(std::string_view controlName, const std::u16string& caption) = 0;
};

}  // namespace mv::dialogs
