#include "tools/mvcommon/database_option.h"

#include <cstdlib>
#include <filesystem>

#include "platform/db/connections.h"
#include "platform/db/db_error.h"

namespace mv::cli {

namespace {

// `connectionString` as given on the command line or in the environment, with the file name of
// a SQLite connection taken to the library's narrow form.
std::string WithLibraryPath(std::string_view connectionString) {
  constexpr std::string_view kSqlite = "sqlite:";
  if (!connectionString.starts_with(kSqlite)) return std::string(connectionString);
  return std::string(kSqlite) + PathArgument(connectionString.substr(kSqlite.size()));
}

}  // namespace

std::string MainConnectionString(const ParsedArgs& args) {
  if (const auto option = args.Option(kDatabaseOption); option && !option->empty()) {
    return WithLibraryPath(*option);
  }
  if (const char* env = std::getenv("MV_DBMAIN"); env != nullptr && *env != '\0') {
    return WithLibraryPath(env);
  }
  // Says which build target makes the file, which the connection's own error cannot.
  if (!std::filesystem::exists(MV_DEMO_DATABASE)) {
    throw db::EDatabaseError("the demo database " MV_DEMO_DATABASE
                             " has not been built (build target demo_database)");
  }
  return WithLibraryPath("sqlite:" MV_DEMO_DATABASE);
}

void OpenMainDatabase(const ParsedArgs& args) {
  db::OpenConnection(db::kMainConnection, MainConnectionString(args));
}

}  // namespace mv::cli
