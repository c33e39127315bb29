// The add-on handshake on real windows: a windowed add-on started, its window found by caption,
// the two hook messages posted, and the host's message loop run until the answer comes; an add-on
// that refuses, one that opens no window and one that opens it too late.
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/processes/program_start.h"
#include "platform/processes/top_windows.h"
#include "tests/support/helper_program.h"

namespace mv::processes {
namespace {

constexpr uint32_t kHookMessage = 2024;
constexpr UINT kAddonAnswer = 2025;
constexpr UINT_PTR kGiveUpTimer = 1;

bool answered = false;
WPARAM answer = 0;

LRESULT CALLBACK HostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kAddonAnswer) {
    answer = wParam;
    answered = true;
    return 0;
  }
  if (message == WM_TIMER && wParam == kGiveUpTimer) {
    ::PostQuitMessage(1);  // no answer in time: the wait below ends instead of hanging
    return 0;
  }
  return ::DefWindowProcW(window, message, wParam, lParam);
}

class AddonHandshake : public ::testing::Test {
 protected:
  void SetUp() override {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = HostProc;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"MvTestHost";
    ::RegisterClassW(&windowClass);
    host_ = ::CreateWindowExW(0, L"MvTestHost", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100,
                              nullptr, nullptr, windowClass.hInstance, nullptr);
    ASSERT_NE(host_, nullptr) << "no window system (run under xvfb-run)";
    SetHostWindow(reinterpret_cast<TWindowHandle>(host_));
    answered = false;
  }
  void TearDown() override {
    SetHostWindow(0);
    ::DestroyWindow(host_);
  }

  // Starts the add-on in `mode` with `caption`.
  static int32_t Start(const char* mode, const std::string& caption) {
    return StartProgramArgs({test::HelperProgram(TEST_ADDON), mode, caption}, smNormal);
  }

  // Posts the two hook messages and handles the host's messages until the answer comes; the
  // answer, or -1 when none came within 30 seconds.
  int Call(TWindowHandle addon, uint32_t code, uint32_t parameter) {
    const auto self = static_cast<uint32_t>(HostWindow());
    EXPECT_TRUE(PostWindowMessage(addon, kHookMessage, 3, self));
    EXPECT_TRUE(PostWindowMessage(addon, kHookMessage, code, parameter));
    ::SetTimer(host_, kGiveUpTimer, 30000, nullptr);
    while (!answered && HandleHostMessage()) {
    }
    ::KillTimer(host_, kGiveUpTimer);
    if (!answered) {
      MSG quit;
      ::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);  // the give-up left it
    }
    return answered ? static_cast<int>(answer) : -1;
  }

  HWND host_ = nullptr;
};

TEST_F(AddonHandshake, StartedFoundAndAnswered) {
  ASSERT_EQ(HostWindow(), reinterpret_cast<TWindowHandle>(host_));
  EXPECT_EQ(FindTopLevelWindow("MvTest Answer"), 0u);
  ASSERT_GE(Start("answer", "MvTest Answer"), 32);
  const TWindowHandle addon = WaitForTopLevelWindow("MvTest Answer", std::chrono::seconds(30));
  ASSERT_NE(addon, 0u);
  EXPECT_EQ(FindTopLevelWindow("MvTest Answer"), addon);
  EXPECT_TRUE(CentreAndRaiseWindow(addon));
  RECT rect{};
  ASSERT_TRUE(::GetWindowRect(reinterpret_cast<HWND>(addon), &rect));
  EXPECT_EQ(rect.left, (::GetSystemMetrics(SM_CXSCREEN) - (rect.right - rect.left)) / 2);
  EXPECT_EQ(rect.top, (::GetSystemMetrics(SM_CYSCREEN) - (rect.bottom - rect.top)) / 2);
  EXPECT_EQ(Call(addon, 17, 25), 42);  // both messages arrived, in their order
}

TEST_F(AddonHandshake, RefusedWithANonZeroAnswer) {
  ASSERT_GE(Start("refuse", "MvTest Refuse"), 32);
  const TWindowHandle addon = WaitForTopLevelWindow("MvTest Refuse", std::chrono::seconds(30));
  ASSERT_NE(addon, 0u);
  EXPECT_EQ(Call(addon, 1, 0), 9999);
}

TEST_F(AddonHandshake, NoWindowAndAWindowTooLate) {
  ASSERT_GE(Start("nowindow", "MvTest None"), 32);
  EXPECT_EQ(WaitForTopLevelWindow("MvTest None", std::chrono::seconds(5)), 0u);
  ASSERT_GE(Start("late", "MvTest Late"), 32);
  EXPECT_EQ(WaitForTopLevelWindow("MvTest Late", std::chrono::seconds(1)), 0u);
  const TWindowHandle late = WaitForTopLevelWindow("MvTest Late", std::chrono::seconds(30));
  ASSERT_NE(late, 0u);
  EXPECT_EQ(Call(late, 0, 0), 0);
  EXPECT_FALSE(CentreAndRaiseWindow(0));
  EXPECT_FALSE(PostWindowMessage(0x7FFFFFF0u, kHookMessage, 0, 0));  // no such window
}

TEST(ProgramStart, StartResultsOfMissingProgramsAndBadLines) {
  EXPECT_EQ(StartProgram("", smHidden), kStartNoCommand);
  EXPECT_EQ(StartProgram(std::string("a\0b", 3), smHidden), kStartNoCommand);
  EXPECT_EQ(StartProgram("mv-no-such-program.exe", smHidden), kStartNotFound);
  EXPECT_EQ(StartProgramArgs({}, smHidden), kStartNoCommand);
  EXPECT_EQ(StartProgramArgs({"mv-no-such-program.exe", "a b"}, smHidden), kStartNotFound);
  EXPECT_GE(StartProgramArgs({test::HelperProgram(TEST_ADDON), "bad"}, smHidden), 32);
}

}  // namespace
}  // namespace mv::processes
