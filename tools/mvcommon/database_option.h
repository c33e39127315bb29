// The main database of the commands that use one: the option "--db CONNECTION", else the
// environment variable MV_DBMAIN, else the demo installation's database. A connection string is
// "sqlite:PATH" or "odbc:<ODBC connection string>", as mv::db::OpenConnection takes it.
#pragma once

#include <string>
#include <string_view>

#include "tools/mvcommon/command_line.h"

namespace mv::cli {

// The name of the option, for a command's list of valued options.
inline constexpr std::string_view kDatabaseOption = "db";

// The user the commands sign in as: the demo database's user "DEMO".
inline constexpr std::string_view kDemoUser = "DEMO";

// The connection string the command should use, in the order above; an empty --db or
// MV_DBMAIN counts as not given. Raises mv::db::EDatabaseError when it would be the demo
// database and that has not been built.
std::string MainConnectionString(const ParsedArgs& args);

// Opens the connection DBMAIN with MainConnectionString(args); raises mv::db::EDatabaseError
// with the driver's message when the database cannot be opened.
void OpenMainDatabase(const ParsedArgs& args);

}  // namespace mv::cli
