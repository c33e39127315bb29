#include "common/frame/advance_values.h"

#include "platform/files/paths.h"

namespace mv {
namespace {

constexpr size_t kRecipientLength = 35;

}  // namespace

std::string RecipientIdentity(std::string_view trimmed) {
  std::string id(trimmed.substr(0, kRecipientLength));
  for (char& c : id) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return id;
}

std::string WithFinalDelimiter(std::string folder) {
  if (folder.empty() || folder.back() != files::kPathDelim) folder += files::kPathDelim;
  return folder;
}

}  // namespace mv
