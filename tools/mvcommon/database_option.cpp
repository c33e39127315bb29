#include "tools/mvcommon/database_option.h"

#include <cstdlib>
#include <filesystem>

#include "platform/db/connections.h"
#include "platform/db/db_error.h"

namespace mv::cli {

std::string MainConnectionString(const ParsedArgs& args) {
  if (const auto option = args.Option(kDatabaseOption); option && !option->empty()) return *option;
  if (const char* env = std::getenv("MV_DBMAIN"); env != nullptr && *env != '\0') return env;
  // Says which build target makes the file, which the connection's own error cannot.
  if (!std::filesystem::exists(MV_DEMO_DATABASE)) {
    throw db::EDatabaseError("the demo database " MV_DEMO_DATABASE
                             " has not been built (build target demo_database)");
  }
  return "sqlite:" MV_DEMO_DATABASE;
}

void OpenMainDatabase(const ParsedArgs& args) {
  db::OpenConnection(db::kMainConnection, MainConnectionString(args));
}

}  // namespace mv::cli
