#include "tools/mvcommon/progress_bar.h"

#include <csignal>
#include <cstdio>

namespace mv::cli {
namespace {

constexpr int kBarWidth = 30;

volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int) {
  interrupted = 1;
}

}  // namespace

std::string ProgressText(const tables::TArchiveProgress& p) {
  std::string text = "[" + std::to_string(p.TableIndex + 1) + "/" + std::to_string(p.TableCount) +
                     "] " + p.Table + " ";
  if (p.TableRows >= 0) {
    const int64_t done = p.TableRows == 0 ? 1 : std::min(p.Rows, p.TableRows);
    const int64_t whole = p.TableRows == 0 ? 1 : p.TableRows;
    const int filled = static_cast<int>(done * kBarWidth / whole);
    text += "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '-') + "] " +
            std::to_string(done * 100 / whole) + "% " + std::to_string(p.Rows) + "/" +
            std::to_string(p.TableRows) + " rows";
  } else {
    text += std::to_string(p.Rows) + " rows";
  }
  return text;
}

tables::TProgressEvent StderrProgress() {
  interrupted = 0;
  std::signal(SIGINT, Interrupt);
  return [lastTable = 0](const tables::TArchiveProgress& p) mutable {
    // A new table starts a new line; the line of the one before stays.
    std::fprintf(stderr, "%s%s", p.TableIndex != lastTable ? "\n" : "\r", ProgressText(p).c_str());
    lastTable = p.TableIndex;
    std::fflush(stderr);
    return interrupted == 0;
  };
}

}  // namespace mv::cli
