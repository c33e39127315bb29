#include "tools/mvcommon/database_option.h"

#include <cstdlib>

#include "platform/db/connections.h"

namespace mv::cli {

std::string MainConnectionString(const ParsedArgs& args) {
  if (const auto option = args.Option(kDatabaseOption); option && !option->empty()) return *option;
  if (const char* env = std::getenv("MV_DBMAIN"); env != nullptr && *env != '\0') return env;
  return "sqlite:" MV_DEMO_DATABASE;
}

void OpenMainDatabase(const ParsedArgs& args) {
  db::OpenConnection(db::kMainConnection, MainConnectionString(args));
}

}  // namespace mv::cli
