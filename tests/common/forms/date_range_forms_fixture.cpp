#include "tests/common/forms/date_range_forms_fixture.h"

#include <QTest>
#include <fstream>
#include <sstream>

#include "common/dates/date_range_setter.h"
#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "platform/qt/qt_button.h"
#include "platform/qt/qt_combo_box.h"

namespace mv::test {

DateRangeFormsTest::DateRangeFormsTest() {
  std::stringstream schema;
  schema << std::ifstream(MV_SYSUSER_SQL).rdbuf();
  Exec(schema.str());
  Exec("insert into sysuser (userid) values ('DEMO')");
  UserRecord.UserID = "DEMO";
  LangChanger().SetLanguage(kLangEnglish);
  // The preset dialog's link lives as long as the program, and the shared list with it: read it
  // from this test's user.
  TDateRangeSetter::Reload();
}

DateRangeFormsTest::~DateRangeFormsTest() {
  LangChanger().SetLanguage(kLangChinese);
}

ListScreen::ListScreen(const std::string& key, bool enabled, bool buttonFirst) {
  if (buttonFirst) button = new QToolButton(window.get());
  combo = new QComboBox(window.get());
  if (!buttonFirst) button = new QToolButton(window.get());
  controls::TComboBox& control = qt::ComboBoxControl(*combo);
  control.SetOnChange([this](controls::TComboBox&) { ++choices; });
  link = enabled ? TComboBox_DateRangeSetter_Link::CreateInstance(control, key)
                 : TComboBox_DateRangeSetter_Link::CreateInstanceDisabled(control, key);
  link->SetConfigTrigger(&qt::ButtonControl(*button));
}

void ListScreen::Choose(int row) const {
  QTest::keyClick(combo, Qt::Key_Home);
  for (int i = 0; i < row; ++i) QTest::keyClick(combo, Qt::Key_Down);
}

TDateTime March31() {
  return DateOf(DayNumberOf({2024, 3, 31}), (14 * 60 + 5) / 1440.0);
}

}  // namespace mv::test
