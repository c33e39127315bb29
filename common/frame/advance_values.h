// Values of [Receipient] and [Advance] as the start routines keep them, shared by the client's
// settings loader and the backup tool's start.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// A recipient identity of [Receipient] (narrow text in the user's code page) already trimmed by
// the caller: cut to 35 bytes, then its English letters a-z upper-cased; the bytes of double-byte
// characters stay as they are.
std::string RecipientIdentity(std::string_view trimmed);

// `folder` with one final separator; an empty folder becomes the separator alone.
std::string WithFinalDelimiter(std::string folder);

}  // namespace mv
