// The string list of the shared state: lines of narrow text, often tuples "name=value".
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace mv {

using TStringList = std::vector<std::string>;

// Raised when a line past the end of a string list is asked for.
class EListError : public std::out_of_range {
 public:
  using std::out_of_range::out_of_range;
};

// Line `index` of `list`; throws EListError "List index out of bounds (N)" when there is none.
const std::string& LineAt(const TStringList& list, size_t index);

// Sorts `list` by whole line as the user's language sorts texts, without regard to case
// (MV_AnsiCompareText: "=" before digits, digits before letters, so keys 1, 10, 11, 2 keep that
// order); lines that compare equal keep their order.
void SortStringList(TStringList& list);

// The lines of `list` joined with CR LF after each line (the list's text).
std::string StringListText(const TStringList& list);

}  // namespace mv
