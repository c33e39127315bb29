// mvcommon log: appends one row to the system log of the main database as the demo user, as the
// client's forms do (InsertSystemLog), and prints the number the database gave the row. The
// library drops a failing log row silently; the command checks that the row arrived.
#include <cstdio>
#include <string>

#include "common/frame/shared_state.h"
#include "common/settings/system_log.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "tools/mvcommon/command_line.h"
#include "tools/mvcommon/database_option.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon log [--db CONNECTION] EVENT REFNO TYPE STATUS\n"
    "\n"
    "Appends one row to the system log (table Systemlg) with the time now, the user DEMO and\n"
    "the four texts (UTF-8), and prints the row's LogNo. TYPE and STATUS reach the library as\n"
    "its callers give them, in the system code page (MV_CODEPAGE), so they keep only what that\n"
    "code page holds. Exit code 1 when the row could not be written.\n"
    "\n"
    "Options:\n"
    "  --db CONNECTION   the main database: sqlite:PATH or odbc:CONNECTION-STRING (default:\n"
    "                    MV_DBMAIN, else the demo database)\n"
    "  -h, --help        show this text\n";

constexpr std::string_view kOptions[] = {kDatabaseOption};

// The highest LogNo of the log; 0 when it is empty. Raises EDatabaseError when it cannot be read.
int64_t LastLogNo() {
  db::TMVADODataSet dataset;
  dataset.SetCommandText("Select max(LogNo) from Systemlg");
  dataset.Open();
  return dataset.Fields(0).AsInteger();
}

int Run(const ParsedArgs& args) {
  if (args.positionals.size() != 4) throw UsageError("EVENT, REFNO, TYPE and STATUS are needed");
  OpenMainDatabase(args);
  UserRecord.UserID = std::string(kDemoUser);
  const auto wide = [&args](size_t i) { return codepage::WideFromUtf8(args.positionals[i]); };
  const auto system = [&args](size_t i) { return codepage::SystemFromUtf8(args.positionals[i]); };
  const int64_t before = LastLogNo();
  InsertSystemLog(wide(0), wide(1), system(2), system(3));
  const int64_t logNo = LastLogNo();
  if (logNo <= before) {
    std::fputs("mvcommon: the system log row was not written\n", stderr);
    return 1;
  }
  std::printf("%lld\n", static_cast<long long>(logNo));
  return 0;
}

constinit const Command kLogCommand{"log", "append a row to the system log as the demo user",
                                    kUsage, kOptions, &Run};

}  // namespace

MV_CLI_COMMAND(kLogCommand);

}  // namespace mv::cli
