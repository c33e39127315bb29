// libFuzzer target of stored grid layouts. The input is UTF-16 units (two bytes each,
// little-endian, lone surrogates allowed): a layout value as a user's settings may hold it. It is
// applied to an open dataset of four fields shown in a grid with a column per field. Whatever it
// holds, the dataset keeps exactly its four fields (only their order and visibility change), each
// menu item is checked exactly when its field is visible, and the layout written from the result
// restores that same result.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>
#include <string>

#include "common/settings/grid_layout.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"

namespace {

constexpr const char* kFields[] = {"RefNo", "Sender", "Subject", "Size"};

void Check(bool condition) {
  if (!condition) std::abort();
}

class Grid : public mv::controls::TGridColumns {
 public:
  int FindColumn(std::string_view name) const override {
    for (int i = 0; i < 4; ++i) {
      if (std::string_view(kFields[i]) == name) return i;
    }
    return -1;
  }
  int ColumnWidth(int column) const override { return widths[column]; }
  void SetColumnWidth(int column, int width) override { widths[column] = width; }
  void SetColors(mv::controls::TColor, mv::controls::TColor, mv::controls::TColor) override {}
  int widths[4] = {64, 64, 64, 64};
};

class Menu : public mv::controls::TMenuItems {
 public:
  int Count() const override { return 4; }
  std::string Name(int item) const override { return std::string("mi") + kFields[item]; }
  bool Checked(int item) const override { return checked[item]; }
  void SetChecked(int item, bool value) override { checked[item] = value; }
  bool checked[4] = {};
};

std::unique_ptr<mv::db::TMVADODataSet> inbox;

// Field order, visibility and column widths.
std::string State(const Grid& grid) {
  std::string state;
  for (int i = 0; i < inbox->FieldCount(); ++i) {
    const mv::db::TField& field = inbox->Fields(i);
    state += field.FieldName() + (field.Visible() ? "+" : "-") +
             std::to_string(grid.widths[grid.FindColumn(field.FieldName())]) + " ";
  }
  return state;
}

void CheckInvariants(const Menu& menu) {
  std::set<std::string> names;
  for (int i = 0; i < inbox->FieldCount(); ++i) names.insert(inbox->Fields(i).FieldName());
  Check(inbox->FieldCount() == 4 && names == std::set<std::string>(kFields, kFields + 4));
  for (int item = 0; item < 4; ++item) {
    Check(menu.checked[item] == inbox->FieldByName(kFields[item]).Visible());
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  char folder[] = "/tmp/fuzz_grid_layout.XXXXXX";
  if (mkdtemp(folder) == nullptr) std::abort();
  const std::string file = std::string(folder) + "/main.db";
  std::fclose(std::fopen(file.c_str(), "w"));  // an empty file is an empty database
  mv::db::OpenConnection("DBMAIN", "sqlite:" + file);
  mv::db::TMVADOCommand command;
  command.SetCommandText("create table inbox (RefNo text, Sender text, Subject text, Size int)");
  command.Execute();
  inbox = std::make_unique<mv::db::TMVADODataSet>();
  inbox->SetCommandText("select RefNo, Sender, Subject, Size from inbox");
  inbox->Open();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::u16string layout(size / 2, u'\0');
  std::memcpy(layout.data(), data, layout.size() * 2);
  Grid grid;
  Menu menu;
  mv::SetColumnSetting(*inbox, layout, menu, grid);
  CheckInvariants(menu);
  const std::string applied = State(grid);
  std::u16string written;
  mv::GetColumnSetting(*inbox, written, grid);
  Grid other;
  mv::SetColumnSetting(*inbox, written, menu, other);
  Check(State(other) == applied);
  CheckInvariants(menu);
  return 0;
}
