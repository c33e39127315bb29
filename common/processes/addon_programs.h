// Add-on programs of the client: starting them, bringing their main window forward, and the
// two-message handshake with a running add-on.
//
// The handshake: the client posts the hook message (kHookMessage) to the add-on's main window
// twice, first with the parameters 3 and the client's own window (so the add-on knows where to
// answer), then with a command code and parameter. The add-on answers with a message to that
// window; the client's own message handling recognises it (its number and parameters are the
// add-on programs' convention, not this library's), stores the answer in AddonResult and then
// sets AddonDone to true.
//
// POSIX: no other program's window can be found or sent a message (see
// platform/processes/top_windows.h). Programs still start, but RunApp answers false and
// CallHookFunc raises "No response from program" as soon as the program has started.
#pragma once

#include <cstdint>
#include <string>

namespace mv {

// The window message number of the handshake: the first user message number 1024 plus 1000.
inline constexpr uint32_t kHookMessage = 2024;

// Brings the add-on whose main window has the caption `caption` to the front, starting it first
// with `commandLine` (window shown normally) when no such window is open; an add-on that runs
// already is not started twice. The window is looked for once more after the start, without
// waiting, then centred on the screen and brought to the top. Returns the answer of bringing it
// to the top: false when no window was found. Both texts are narrow, zero-terminated; a null
// pointer counts as an empty text.
bool RunApp(const char* commandLine, const char* caption);

// Starts `commandLine` (narrow text) with its window hidden and returns the start result as the
// platform gives it: 32 or more means started (see platform/processes/program_start.h).
int32_t RunDOS(const std::string& commandLine);

// Sends the command `code` with `parameter` to the add-on whose main window has the caption
// `caption` and returns its 16-bit answer (AddonResult). When the window is not open, starts
// the program ServerPath + `program` with the user id as its one argument (window shown; both
// handed over whole, so blanks and quotes in them are ordinary characters) and waits for the
// window, keeping the user interface alive, for up to 60 seconds. Then sets AddonDone to false,
// posts the two hook messages, and handles the client's messages until AddonDone is true or the
// application is ending; there is no time limit on that wait, so an add-on that never answers
// keeps the client waiting until it ends.
// Raises std::runtime_error with the text of the current language, narrow: "Cannot run program:
// <program>" / "無法執行: <program>" when the program cannot be started, "No response from program:
// <caption>" / "沒有回應: <caption>" when its window does not appear in time.
uint16_t CallHookFunc(const std::string& caption, const std::string& program, int32_t code,
                      int32_t parameter);

// CallHookFunc; raises std::runtime_error "Add-on program <program> answered <n>" / "附加程式
// <program> 回應 <n>" when the answer is not 0 (and whatever CallHookFunc raises).
void CallHook(const std::string& caption, const std::string& program, int32_t code,
              int32_t parameter);

}  // namespace mv
