// The real registry: the demo installation's keys, imported into the test's Wine prefix from its
// registry export, and values the test writes itself.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "platform/registry/registry.h"
#include "tests/support/temp_dir.h"

namespace mv::registry {
namespace {

// A key of its own under HKEY_LOCAL_MACHINE\SOFTWARE, removed again at the end.
class RegistryWinTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(::RegCreateKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                &key_, nullptr),
              ERROR_SUCCESS);
  }
  void TearDown() override {
    ::RegCloseKey(key_);
    ::RegDeleteKeyW(HKEY_LOCAL_MACHINE, kKey);
  }
  void Set(const wchar_t* name, DWORD type, const void* data, DWORD bytes) {
    ASSERT_EQ(::RegSetValueExW(key_, name, 0, type, static_cast<const BYTE*>(data), bytes),
              ERROR_SUCCESS);
  }
  void SetText(const wchar_t* name, DWORD type, const std::wstring& text) {
    Set(name, type, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  }

  static constexpr const wchar_t* kKey = L"SOFTWARE\\MvcommonTest";
  HKEY key_ = nullptr;
};

TEST(RegistryWin, TheDemoServerPathOfBothProductLines) {
  for (const char* key :
       {"\\SOFTWARE\\Merovan\\Orvex4", "SOFTWARE\\Merovan\\QNVS4", "software\\MEROVAN\\orvex4"}) {
    const std::optional<std::u16string> path = ReadLocalMachineString(key, "serverpath");
    ASSERT_TRUE(path) << key << ": the demo's registry.reg was not imported";
    EXPECT_EQ(path->substr(0, 2), u"Z:") << key;
    EXPECT_EQ(path->substr(path->size() - 12), u"\\demo\\server") << key;
  }
  EXPECT_EQ(ReadLocalMachineString("\\SOFTWARE\\Merovan\\Orvex4", "NoSuchValue"), std::nullopt);
  EXPECT_EQ(ReadLocalMachineString("\\SOFTWARE\\Merovan\\NoSuchKey", "ServerPath"), std::nullopt);
  EXPECT_EQ(ReadLocalMachineString(std::string("\\SOFTWARE\\Merovan\\Orvex4\0x", 27), "ServerPath"),
            std::nullopt);
}

TEST_F(RegistryWinTest, StringValuesOnlyAsStoredInTheSystemCodePage) {
  SetText(L"Plain", REG_SZ, L"C:\\報關\\server\\");
  SetText(L"Expand", REG_EXPAND_SZ, L"%SystemRoot%\\x");
  SetText(L"", REG_SZ, L"default");
  const DWORD number = 7;
  Set(L"Number", REG_DWORD, &number, sizeof number);
  SetText(L"\x5831\x95DC", REG_SZ, L"named in Chinese");  // 報關
  Set(L"Empty", REG_SZ, L"", sizeof(wchar_t));

  test::ScopedEnv big5("MV_CODEPAGE", "950");
  const std::string key = "\\SOFTWARE\\MvcommonTest";
  EXPECT_EQ(ReadLocalMachineString(key, "PLAIN"), u"C:\\報關\\server\\");
  EXPECT_EQ(ReadLocalMachineString(key, "Expand"), u"%SystemRoot%\\x");  // not expanded
  EXPECT_EQ(ReadLocalMachineString(key, ""), u"default");
  EXPECT_EQ(ReadLocalMachineString(key, "Number"), std::nullopt);
  EXPECT_EQ(ReadLocalMachineString(key, "\xB3\xF8\xC3\xF6"), u"named in Chinese");  // Big5 name
  EXPECT_EQ(ReadLocalMachineString(key, "Empty"), u"");
}

}  // namespace
}  // namespace mv::registry
