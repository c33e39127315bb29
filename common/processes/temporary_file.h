// Unique temporary file names in the 8.3 form: eight base-36 characters from the clock and an
// attempt number, then the caller's extension.
#pragma once

#include <cstdint>
#include <string>

namespace mv {

// The eight-character base name of attempt `attempt` at the given local time: month, day and hour
// as one base-36 digit each, minute * 60 + second as three base-36 digits, and the attempt as two,
// each left-padded with "0" (digits 0-9 then A-Z). 3 December 14:05:07, attempt 1: "C3E08J01".
// Attempts above 1295 do not fit two digits and give a longer name.
std::string TemporaryBaseName(int month, int day, int hour, int minute, int second, int attempt);

// Makes a new empty file with a unique name in `folder` (narrow text; a separator is added when it
// does not end with one) and extension `extension` (with its dot, e.g. ".tmp"). For attempt 1, 2,
// ... up to 1000, the base name comes from the current local time and the attempt number
// (TemporaryBaseName); an attempt fails when any file of that base name exists with any extension,
// or when the file cannot be made because it exists (the making is the test, so of several
// processes that race for one name exactly one gets it) or the folder is missing or not writable.
// Returns 0 with `name` the full name of the file made, or -1 after 1000 failed attempts with
// `name` the last full name tried.
int32_t GetTemporaryFile(const std::string& folder, const std::string& extension,
                         std::string& name);

}  // namespace mv
