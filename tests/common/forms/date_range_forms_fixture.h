// What the tests of the period combo box and the preset dialog share: a test installation with a
// real user table and the signed-in user DEMO, English captions, and list screens with a period
// combo box and its configuration button.
#pragma once

#include <QComboBox>
#include <QToolButton>
#include <QWidget>
#include <memory>
#include <string>

#include "common/dates/combo_link.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {

class DateRangeFormsTest : public TextFixture {
 protected:
  DateRangeFormsTest();
  ~DateRangeFormsTest() override;

  SqliteBackend db_{installation_.Dir()};
};

// A list screen: a window holding a period combo box (its change handler counts the user's
// choices) and the button that opens the preset dialog, bound to a link under `key`.
struct ListScreen {
  explicit ListScreen(const std::string& key, bool enabled = true, bool buttonFirst = false);
  // Chooses item `row` the way a user does with the keyboard (Home, then Down).
  void Choose(int row) const;

  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  QComboBox* combo = nullptr;
  QToolButton* button = nullptr;
  TComboBox_DateRangeSetter_Link* link = nullptr;
  int choices = 0;  // calls of the combo box's own change handler
};

// 31 March 2024 14:05.
TDateTime March31();

}  // namespace mv::test
