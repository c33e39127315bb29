// The top-level windows of add-on programs: finding one by its caption, placing it, and the window
// messages of the handshake between the client and a running add-on.
// POSIX: there is no window system interface to find another program's windows or post messages
// to them, so no window is ever found and every operation on a window fails as described.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace mv::processes {

// A top-level window of any program; 0 stands for none.
using TWindowHandle = std::uintptr_t;

// The top-level window whose caption is exactly `caption` (narrow text); 0 when there is none.
// POSIX: always 0.
TWindowHandle FindTopLevelWindow(const std::string& caption);

// Looks for the window with caption `caption` again and again, letting the user interface handle
// what is waiting in between so the client stays alive, until it is found or more than `limit`
// has passed. Returns the window, or 0 when the time ran out.
// POSIX: 0 at once, since no window can ever be found.
TWindowHandle WaitForTopLevelWindow(const std::string& caption, std::chrono::seconds limit);

// Centres `window` on the screen (left := (screen width - width) / 2, top likewise, rounding
// toward zero; the size stays), repaints it, and brings it to the top. Returns the answer of
// bringing it to the top: false for 0 or a window that is gone. POSIX: false.
bool CentreAndRaiseWindow(TWindowHandle window);

// Posts the message `message` with the parameters `wParam` and `lParam` to `window` without
// waiting for it to be handled; false when it could not be posted. POSIX: false.
bool PostWindowMessage(TWindowHandle window, uint32_t message, uint32_t wParam, uint32_t lParam);

// The window of the client program to which add-ons send their answers: the one set last by
// SetHostWindow, else the active window of this program; 0 when there is none. POSIX: 0.
TWindowHandle HostWindow();
void SetHostWindow(TWindowHandle window);

// Waits for the next message of the client's user interface and handles it. False when the
// application is ending (the message loop has been told to quit); the quit request is then left
// for the client's own message loop. POSIX: false, as there is no message loop to wait on.
bool HandleHostMessage();

}  // namespace mv::processes
