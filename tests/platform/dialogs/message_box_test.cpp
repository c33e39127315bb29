// What a box request becomes on the system's message box: the button set, the default button's
// place, and the buttons a message box cannot show.
#include "platform/dialogs/message_box.h"

#include <gtest/gtest.h>

namespace mv::dialogs {
namespace {

TMessageBoxLayout LayoutOf(TMsgDlgButtons buttons, TMsgDlgBtn defaultButton) {
  DialogRequest request;
  request.buttons = buttons;
  request.defaultButton = defaultButton;
  return MessageBoxLayout(request);
}

TEST(MessageBox, EachStandardSetWithItsDefaultButton) {
  using B = TBoxButtons;
  EXPECT_EQ(LayoutOf({mbOK}, mbOK), (TMessageBoxLayout{B::kOk, 0}));
  EXPECT_EQ(LayoutOf({mbOK, mbCancel}, mbCancel), (TMessageBoxLayout{B::kOkCancel, 1}));
  EXPECT_EQ(LayoutOf({mbYes, mbNo}, mbNo), (TMessageBoxLayout{B::kYesNo, 1}));
  EXPECT_EQ(LayoutOf({mbCancel, mbNo, mbYes}, mbCancel), (TMessageBoxLayout{B::kYesNoCancel, 2}));
  EXPECT_EQ(LayoutOf({mbRetry, mbCancel}, mbRetry), (TMessageBoxLayout{B::kRetryCancel, 0}));
  EXPECT_EQ(LayoutOf({mbAbort, mbRetry, mbIgnore}, mbIgnore),
            (TMessageBoxLayout{B::kAbortRetryIgnore, 2}));
  EXPECT_EQ(BoxButtons(B::kYesNoCancel), (std::vector<TMsgDlgBtn>{mbYes, mbNo, mbCancel}));
}

TEST(MessageBox, ButtonsNoBoxHasAndMixedSets) {
  using B = TBoxButtons;
  // All, No to All, Yes to All and Help are left out.
  EXPECT_EQ(LayoutOf({mbYes, mbNo, mbYesToAll, mbNoToAll, mbHelp}, mbYesToAll),
            (TMessageBoxLayout{B::kYesNo, 0}));
  EXPECT_EQ(LayoutOf({mbHelp, mbAll}, mbHelp), (TMessageBoxLayout{B::kOk, 0}));
  EXPECT_EQ(LayoutOf({}, mbOK), (TMessageBoxLayout{B::kOk, 0}));
  // No set holds Yes, No and Retry: the first with the most of them.
  EXPECT_EQ(LayoutOf({mbYes, mbNo, mbRetry}, mbNo), (TMessageBoxLayout{B::kYesNo, 1}));
  EXPECT_EQ(LayoutOf({mbOK, mbRetry, mbCancel}, mbRetry), (TMessageBoxLayout{B::kOkCancel, 0}));
}

}  // namespace
}  // namespace mv::dialogs
