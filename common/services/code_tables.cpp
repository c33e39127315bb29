#include "common/services/code_tables.h"

#include <strings.h>

#include <algorithm>
#include <map>
#include <set>

#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "platform/ini/ini_file.h"

namespace mv {
namespace {

struct TCodeSection {
  std::string Name;
  TCodeTable Items;
};

// The tables read from one system configuration file.
struct TLoadedTables {
  std::string FileName;
  bool Loaded = false;
  std::vector<TCodeSection> Sections;
};

TLoadedTables& Cache() {
  static TLoadedTables cache;
  return cache;
}

std::string AsciiUpper(std::string text) {
  for (char& c : text) c = (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
  return text;
}

bool IsCodeSection(const std::string& name) {
  return AsciiUpper(name).find("CODE_") != std::string::npos;
}

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

TCodeTable ReadTable(const ini::TIniFile& file, const std::string& section) {
  TCodeTable table;
  std::set<std::string> seen;
  for (const std::string& code : file.ReadSection(section)) {
    if (!seen.insert(AsciiUpper(code)).second)
      continue;  // a later line of the same code is never found
    table.push_back(ParseCodeItem(code, file.ReadString(section, code, "")));
  }
  return table;
}

const TLoadedTables& Loaded() {
  TLoadedTables& cache = Cache();
  const std::string fileName = ServerPath + Global_Merovan_Ini;
  if (cache.Loaded && cache.FileName == fileName) return cache;
  cache = TLoadedTables{fileName, true, {}};
  const ini::TIniFile file(fileName);
  std::set<std::string> seen;
  for (const std::string& name : file.ReadSections()) {
    // Only the first section of a name is ever searched.
    if (!IsCodeSection(name) || !seen.insert(AsciiUpper(name)).second) continue;
    cache.Sections.push_back({name, ReadTable(file, name)});
  }
  return cache;
}

std::string Description(const TCodeItem& item, uint8_t language) {
  const bool english = language == kLangEnglish;
  const std::string& chosen = english ? item.English : item.Chinese;
  const std::string& text = chosen.empty() ? (english ? item.Chinese : item.English) : chosen;
  std::u16string wide = codepage::ToWide(text, codepage::SystemCodePage());
  std::replace(wide.begin(), wide.end(), u'|', u'/');
  if (language == kLangSimplified) return ShownNarrow(language, wide);
  return codepage::FromWide(wide, codepage::SystemCodePage());
}

}  // namespace

TCodeItem ParseCodeItem(std::string_view code, std::string_view value) {
  const int cp = codepage::SystemCodePage();
  const std::u16string wide = codepage::ToWide(value, cp);
  const size_t bar = wide.find(u'|');
  if (bar == std::u16string::npos)
    return {std::string(code), std::string(value), std::string(value)};
  return {std::string(code), codepage::FromWide(std::u16string_view(wide).substr(0, bar), cp),
          codepage::FromWide(std::u16string_view(wide).substr(bar + 1), cp)};
}

std::vector<std::string> CodeTableNames() {
  std::vector<std::string> names;
  for (const TCodeSection& section : Loaded().Sections) names.push_back(section.Name);
  return names;
}

const TCodeTable& CodeTable(std::string_view name) {
  static const TCodeTable empty;
  for (const TCodeSection& section : Loaded().Sections) {
    if (SameName(section.Name, name)) return section.Items;
  }
  return empty;
}

std::vector<std::string> CodePickList(std::string_view name) {
  const uint8_t language = LangChanger().Language();
  std::vector<std::string> lines;
  for (const TCodeItem& item : CodeTable(name)) {
    lines.push_back(item.Code + "|" + Description(item, language));
  }
  return lines;
}

}  // namespace mv
