#include "common/frame/config_helpers.h"

#include "common/frame/shared_state.h"
#include "common/text/str_utils.h"
#include "common/validate/check_digits.h"
#include "modules/mv_strings.h"
#include "platform/ini/ini_file.h"

namespace mv {
namespace {

std::string SystemIniName() {
  return ServerPath + Global_Merovan_Ini;
}

ini::TIniFile OpenSystemIni() {
  return ini::TIniFile(SystemIniName());
}

template <typename Text, typename View>
void FillGrid(View items, const std::vector<Text>& list, int column, int row,
              TGridCells<Text>& grid) {
  int i = 0;
  for (size_t comma = items.find(','); comma != View::npos; comma = items.find(',')) {
    grid.SetCell(column, row + i, Text(items.substr(0, comma)));
    if (list.size() > static_cast<size_t>(i)) grid.SetCell(column + 1, row + i, list[i]);
    items.remove_prefix(comma + 1);
    ++i;
  }
  grid.SetRowCount(i);
}

}  // namespace

std::string TupleName(std::string_view tuple) {
  return std::string(tuple.substr(0, tuple.find('=')));
}

std::string TupleValue(std::string_view tuple) {
  size_t pos = tuple.find('=');
  return pos == std::string_view::npos ? std::string() : std::string(tuple.substr(pos + 1));
}

void GetStringListValue(TStringList& list) {
  for (std::string& line : list) {
    if (line.find('=') != std::string::npos) line = TupleValue(line);
  }
}

std::unique_ptr<TStringList> StringListNames(const TStringList& list) {
  auto names = std::make_unique<TStringList>();
  names->reserve(list.size());
  for (const std::string& line : list) names->push_back(TupleName(line));
  return names;
}

int32_t GetIniIntegerValue(std::string_view section, std::string_view key) {
  return OpenSystemIni().ReadInteger(section, key, 0);
}

void SetIniIntegerValue(std::string_view section, std::string_view key, int32_t value) {
  OpenSystemIni().WriteInteger(section, key, value);
}

void LoadStringListFromIni(std::string_view section, TStringList& list) {
  list = OpenSystemIni().ReadSectionValues(section);
}

std::string GetIniSeq(std::string_view section, std::string_view key) {
  if (!modules::MV_SameText(section, "TDEC")) {
    if (key.empty()) return "ERRORINI";
    return OpenSystemIni().ReadString(section, key, "ERRORINI");
  }
  // Read, count and write back as one step under the file's write lock, so that no other
  // client of the installation reads the counter in between.
  std::string issued;
  ini::ChangeIniFile(SystemIniName(), [&](ini::TIniFile& ini) {
    const int64_t next = int64_t{ini.ReadInteger(section, key, 1)} + 1;
    issued = FillStr(PadL(mod36(next), 4), ' ', '0');
    ini.WriteString(section, key, std::to_string(next));
  });
  return issued;
}

void GetIniGrd(std::string_view items, const TStringList& list, int column, int row,
               TGridCells<std::string>& grid) {
  FillGrid<std::string>(items, list, column, row, grid);
}

void GetIniGrd(std::u16string_view items, const std::vector<std::u16string>& list, int column,
               int row, TGridCells<std::u16string>& grid) {
  FillGrid<std::u16string>(items, list, column, row, grid);
}

}  // namespace mv
