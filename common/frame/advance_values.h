// Values of [Receipient] and [Advance] as the start routines keep them, shared by the client's
// settings loader and the backup tool's start.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// A recipient identity of [Receipient] already trimmed by the caller: upper-cased (English
// letters) and cut to 35 characters.
std::string RecipientIdentity(std::string_view trimmed);

// `folder` with one final separator; an empty folder becomes the separator alone.
std::string WithFinalDelimiter(std::string folder);

}  // namespace mv
