// A test installation with ServerPath set to its server folder, Big5 as the user's code page and
// a recording dialogs provider installed.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "common/frame/shared_state.h"
#include "modules/mv_texts.h"
#include "platform/codepage/codepage.h"
#include "platform/dialogs/dialogs.h"
#include "tests/support/installation.h"

namespace mv::test {

class TextFixture : public ::testing::Test {
 protected:
  TextFixture() { ServerPath = installation_.ServerFolder() + "/"; }
  ~TextFixture() override { UserRecord = {}; }
  // Writes the text catalogue (UTF-8) into the server folder.
  void WriteCatalogue(std::string_view text) const {
    installation_.Dir().Write(std::string("client/server/") + modules::kTextCatalogueName, text);
  }

  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
  TestInstallation installation_;
  dialogs::RecordingDialogProvider dialogs_;
  dialogs::ScopedProvider provider_{dialogs_};
};

// The Big5 bytes of a UTF-8 text.
inline std::string Big5(std::string_view utf8) {
  return codepage::FromWide(codepage::WideFromUtf8(utf8), codepage::kBig5);
}

}  // namespace mv::test
