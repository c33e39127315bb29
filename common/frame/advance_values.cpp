#include "common/frame/advance_values.h"

#include "modules/mv_str_case.h"
#include "platform/files/paths.h"

namespace mv {
namespace {

constexpr size_t kRecipientLength = 35;

}  // namespace

std::string RecipientIdentity(std::string_view trimmed) {
  // Only English letters that are characters of their own: the second byte of a Big5 character
  // may look like a letter and stays as it is.
  return modules::_MV_ECharUpperCase(trimmed.substr(0, kRecipientLength));
}

std::string WithFinalDelimiter(std::string folder) {
  if (folder.empty() || folder.back() != files::kPathDelim) folder += files::kPathDelim;
  return folder;
}

}  // namespace mv
