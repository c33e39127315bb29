#include "modules/mv_texts.h"

#include <climits>
#include <cstdio>
#include <map>
#include <optional>

#include "modules/mv_text_catalogue.h"
#include "platform/files/paths.h"

namespace mv::modules {
namespace {

constexpr int kChineseOffset = 6000;

// Reads the catalogue file; a bad line is reported on standard error as "file, line N: why".
TTextCatalogue ReadCatalogue(const std::string& serverPath) {
  const std::string path = files::ResolveFileName(serverPath + kTextCatalogueName);
  std::optional<std::string> bytes = files::ReadWholeFile(path);
  if (!bytes) return {};
  TTextCatalogue catalogue = TTextCatalogue::Parse(*bytes);
  for (const TCatalogueWarning& w : catalogue.warnings()) {
    std::fprintf(stderr, "%s, line %d: %s\n", path.c_str(), w.line, w.message.c_str());
  }
  return catalogue;
}

const TTextCatalogue& CatalogueOf(const std::string& serverPath) {
  static std::map<std::string, TTextCatalogue> catalogues;
  auto it = catalogues.find(serverPath);
  if (it == catalogues.end()) it = catalogues.emplace(serverPath, ReadCatalogue(serverPath)).first;
  return it->second;
}

}  // namespace

std::u16string MV_LoadResStr(const std::string& serverPath, int number) {
  return CatalogueOf(serverPath).Find(number);
}

std::u16string MV_LoadCStr(const std::string& serverPath, int number, uint8_t language) {
  if (language == 1) return MV_LoadResStr(serverPath, number);
  if (number > INT_MAX - kChineseOffset) return {};
  return MV_LoadResStr(serverPath, number + kChineseOffset);
}

}  // namespace mv::modules
