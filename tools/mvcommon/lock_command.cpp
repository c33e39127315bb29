// mvcommon lock: takes the exclusive right to a resource with SetConcurrentRight and holds it for
// a while or until interrupted, so an administrator can see whether a resource is busy or keep
// the client's copies away from it.
#include <signal.h>

#include <charconv>
#include <cstdio>
#include <ctime>
#include <optional>
#include <stdexcept>
#include <string>

#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/processes/concurrent_right.h"
#include "platform/files/lock_file.h"
#include "platform/files/paths.h"
#include "tools/mvcommon/command_line.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon lock [--base-path DIR] RESOURCE [SECONDS]\n"
    "\n"
    "Takes the exclusive right to RESOURCE through its lock file BASE/Temp/RESOURCE.lck, as\n"
    "the client does (up to 15 attempts over about three seconds). Prints \"held\" and keeps the\n"
    "right for SECONDS, or until interrupted (Ctrl-C, SIGTERM, SIGHUP) when SECONDS is not\n"
    "given, then gives it up: exit code 0. Prints \"busy\" when another process holds it: exit\n"
    "code 3. The lock file stays behind; it blocks no one once released. A lock file that\n"
    "cannot be made or opened (no permission, a \"/\" in RESOURCE, Temp not a folder) and a\n"
    "base folder that does not exist end the program with a message and exit code 1.\n"
    "\n"
    "Options:\n"
    "  --base-path DIR   the base folder (the parent of the server folder); without it the\n"
    "                    installation is found and started as by \"mvcommon settings\"\n"
    "  -h, --help        show this text\n";

constexpr std::string_view kOptions[] = {"base-path"};

// SECONDS as a whole number of seconds; -1 (until interrupted) when not given.
long HoldSeconds(const ParsedArgs& args) {
  if (args.positionals.size() < 2) return -1;
  const std::string& text = args.positionals[1];
  long seconds = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  if (error != std::errc() || end != text.data() + text.size() || seconds < 0) {
    throw UsageError("SECONDS must be a whole number of seconds: " + text);
  }
  return seconds;
}

// Waits `seconds` (-1: for ever) or until one of `signals` arrives.
void WaitFor(long seconds, const sigset_t& signals) {
  if (seconds < 0) {
    int signal = 0;
    sigwait(&signals, &signal);
    return;
  }
  const timespec limit{static_cast<time_t>(seconds), 0};
  sigtimedwait(&signals, nullptr, &limit);
}

// The error of a lock file that could not be made or opened (any error but a holder).
std::runtime_error LockFileError(const std::string& resource, files::TLockError error) {
  const std::string file = LockFileName(resource);
  return std::runtime_error(error == files::TLockError::kPermission
                                ? "no permission to make or open the lock file " + file
                                : "the lock file " + file + " cannot be made or opened");
}

void Print(std::string_view line) {
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fflush(stdout);
}

int Run(const ParsedArgs& args) {
  if (args.positionals.empty() || args.positionals.size() > 2) {
    throw UsageError("RESOURCE is needed, and at most SECONDS after it");
  }
  const long seconds = HoldSeconds(args);
  // The interruptions are taken as they come, not as the default ending of the program, so the
  // right is given up in order.
  sigset_t signals;
  sigemptyset(&signals);
  for (int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, signal);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  const std::optional<std::string> basePath = args.Option("base-path");
  if (basePath) {
    BasePath = files::IncludeTrailingDelimiter(PathArgument(*basePath));
  } else {
    Init();
  }
  // A missing base folder would show as "busy" after three seconds; it is a wrong command line.
  if (!files::DirectoryExists(BasePath)) {
    throw std::runtime_error("the base folder " + BasePath + " does not exist");
  }
  int32_t handle = -1;
  files::TLockError error = files::TLockError::kNone;
  const bool held = SetConcurrentRight(args.positionals[0], handle, error);
  if (!held && error != files::TLockError::kHeld) {
    if (!basePath) FreeStrList();
    throw LockFileError(args.positionals[0], error);
  }
  Print(held ? "held\n" : "busy\n");
  if (held) WaitFor(seconds, signals);
  ResetConcurrentRight(handle);
  if (!basePath) FreeStrList();
  return held ? 0 : 3;
}

constinit const Command kLockCommand{
    "lock", "hold the exclusive right to a resource, or tell that it is busy", kUsage, kOptions,
    &Run};

}  // namespace

MV_CLI_COMMAND(kLockCommand);

}  // namespace mv::cli
