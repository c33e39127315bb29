// Windows: top-level windows found by caption, placed and sent messages through the window system.
#include <windows.h>

#include "platform/files/wide_names_p.h"
#include "platform/processes/top_windows.h"

namespace mv::processes {
namespace {

HWND hostWindow = nullptr;

HWND AsWindow(TWindowHandle window) {
  return reinterpret_cast<HWND>(window);
}

// Lets the user interface handle every message that is waiting, without blocking.
void HandleWaitingMessages() {
  MSG msg;
  while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
    if (msg.message == WM_QUIT) {
      ::PostQuitMessage(static_cast<int>(msg.wParam));
      return;
    }
    ::TranslateMessage(&msg);
    ::DispatchMessageW(&msg);
  }
}

}  // namespace

TWindowHandle FindTopLevelWindow(const std::string& caption) {
  const std::optional<std::wstring> wide = files::WideFileName(caption);
  if (!wide) return 0;
  return reinterpret_cast<TWindowHandle>(::FindWindowW(nullptr, wide->c_str()));
}

TWindowHandle WaitForTopLevelWindow(const std::string& caption, std::chrono::seconds limit) {
  const ULONGLONG start = ::GetTickCount64();
  const ULONGLONG limitMs = static_cast<ULONGLONG>(limit.count()) * 1000;
  for (;;) {
    const TWindowHandle window = FindTopLevelWindow(caption);
    if (window != 0) return window;
    if (::GetTickCount64() - start > limitMs) return 0;
    HandleWaitingMessages();
    // Sleeps until the next message or for a moment, rather than spinning.
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
  }
}

bool CentreAndRaiseWindow(TWindowHandle window) {
  const HWND hwnd = AsWindow(window);
  RECT rect{};
  if (::GetWindowRect(hwnd, &rect)) {
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    const int left = (::GetSystemMetrics(SM_CXSCREEN) - width) / 2;
    const int top = (::GetSystemMetrics(SM_CYSCREEN) - height) / 2;
    ::MoveWindow(hwnd, left, top, width, height, TRUE);
  }
  return ::BringWindowToTop(hwnd) != FALSE;
}

bool PostWindowMessage(TWindowHandle window, uint32_t message, uint32_t wParam, uint32_t lParam) {
  return ::PostMessageW(AsWindow(window), message, wParam, static_cast<LPARAM>(lParam)) != FALSE;
}

TWindowHandle HostWindow() {
  return reinterpret_cast<TWindowHandle>(hostWindow != nullptr ? hostWindow : ::GetActiveWindow());
}

void SetHostWindow(TWindowHandle window) {
  hostWindow = AsWindow(window);
}

bool HandleHostMessage() {
  MSG msg;
  const BOOL got = ::GetMessageW(&msg, nullptr, 0, 0);
  if (got <= 0) {
    // WM_QUIT (or a broken queue): the application is ending; the client's loop must see it too.
    if (got == 0) ::PostQuitMessage(static_cast<int>(msg.wParam));
    return false;
  }
  ::TranslateMessage(&msg);
  ::DispatchMessageW(&msg);
  return true;
}

}  // namespace mv::processes
