// The shared state of the library as JSON, for the "settings" command.
#pragma once

#include <nlohmann/json.hpp>

namespace mv::cli {

// One object whose keys are the names of the shared variables a client reads after start-up
// ("ServerPath", "Advance", "BoxRec", "AryPkgInfo" ...), in the order the shared state declares
// them. Records become objects keyed by their field names (ColorRecord: an array of its four
// numbers), string lists arrays of their lines (null for a list that does not exist), booleans
// and numbers stay what they are, and narrow texts are converted from the system code page to
// UTF-8. Valid between Init / Init_Quenta and the clean-up.
nlohmann::ordered_json SharedStateJson();

}  // namespace mv::cli
