// A windowed add-on program for the handshake tests of the Windows build. It opens a top-level
// window with the caption it is given and plays one of the add-on's parts:
//   answer CAPTION   answers the hook with code + parameter
//   refuse CAPTION   answers the hook with 9999, whatever it asks
//   late CAPTION     opens its window only after three seconds, then answers as "answer" does
//   nowindow CAPTION opens no window and ends after three seconds
// The first hook message (2024, 3, host window) tells it where to answer; the second (2024,
// code, parameter) is the request. The answer is the message kAddonAnswer posted to the host
// window with the 16-bit answer as its first parameter; then the add-on ends.
#include <windows.h>

#include <string>

namespace {

constexpr UINT kHookMessage = 2024;
constexpr UINT kAddonAnswer = 2025;
constexpr WPARAM kAnswerToCommand = 3;

HWND host = nullptr;
bool refuse = false;

LRESULT CALLBACK AddonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kHookMessage) {
    if (wParam == kAnswerToCommand && host == nullptr) {
      host = reinterpret_cast<HWND>(static_cast<uintptr_t>(static_cast<uint32_t>(lParam)));
    } else if (host != nullptr) {
      const WPARAM answer =
          refuse ? 9999 : static_cast<WPARAM>(wParam + static_cast<WPARAM>(lParam));
      ::PostMessageW(host, kAddonAnswer, answer & 0xFFFF, 0);
      ::DestroyWindow(window);
    }
    return 0;
  }
  if (message == WM_DESTROY) {
    ::PostQuitMessage(0);
    return 0;
  }
  return ::DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int main() {
  int argc = 0;
  wchar_t** argv = ::CommandLineToArgvW(::GetCommandLineW(), &argc);
  if (argv == nullptr || argc != 3) return 2;
  const std::wstring mode = argv[1];
  const std::wstring caption = argv[2];
  refuse = mode == L"refuse";
  if (mode == L"late" || mode == L"nowindow") ::Sleep(3000);
  if (mode == L"nowindow") return 0;

  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = AddonProc;
  windowClass.hInstance = ::GetModuleHandleW(nullptr);
  windowClass.lpszClassName = L"MvTestAddon";
  ::RegisterClassW(&windowClass);
  const HWND window =
      ::CreateWindowExW(0, L"MvTestAddon", caption.c_str(), WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                        CW_USEDEFAULT, 320, 200, nullptr, nullptr, windowClass.hInstance, nullptr);
  if (window == nullptr) return 3;
  ::ShowWindow(window, SW_SHOWNORMAL);
  MSG msg;
  while (::GetMessageW(&msg, nullptr, 0, 0) > 0) {
    ::TranslateMessage(&msg);
    ::DispatchMessageW(&msg);
  }
  return 0;
}
