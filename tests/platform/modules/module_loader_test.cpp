// Modules: a real shared library loaded by path, its exports, the program's own exports, and
// what failures say.
#include "platform/modules/module_loader.h"

#include <gtest/gtest.h>

#include "platform/files/paths.h"
#include "tests/support/helper_program.h"

// An entry point of the host program, as the client's own exports are found by packages.
extern "C" int mv_test_host_answer() {
  return 7;
}

namespace mv::modules {
namespace {

TEST(ModuleLoader, ExportsOfAModuleAndOfTheProgram) {
  EXPECT_EQ(ModuleFileName("ChkBRN"), "ChkBRN" + std::string(kPackageExtension));
  const std::string path = test::HelperProgram(TEST_MODULE);
  const ModuleHandle module = LoadModule(path);
  ASSERT_NE(module, 0u) << LastModuleError();
  using Answer = int (*)();
  const auto answer = reinterpret_cast<Answer>(GetExport(module, "mv_test_module_answer"));
  ASSERT_NE(answer, nullptr) << LastModuleError();
  EXPECT_EQ(answer(), 42);
  EXPECT_EQ(GetExport(module, "mv_no_such_export"), nullptr);
  EXPECT_FALSE(LastModuleError().empty());
  FreeModule(module);

  const ModuleHandle program = LoadProgramModule();
  ASSERT_NE(program, 0u) << LastModuleError();
  const auto host = reinterpret_cast<Answer>(GetExport(program, "mv_test_host_answer"));
  ASSERT_NE(host, nullptr) << LastModuleError();
  EXPECT_EQ(host(), 7);
  FreeModule(program);
}

TEST(ModuleLoader, FailuresSayWhy) {
  EXPECT_EQ(LoadModule(files::ExtractFilePath(test::HelperProgram(TEST_MODULE)) + "none" +
                       std::string(kPackageExtension)),
            0u);
  EXPECT_FALSE(LastModuleError().empty());
  EXPECT_EQ(LoadModule(std::string("a\0b", 3)), 0u);
  EXPECT_EQ(LastModuleError(), "the module name holds a zero byte");
  EXPECT_EQ(GetExport(0, "x"), nullptr);
  EXPECT_EQ(LastModuleError(), "module not loaded");
  FreeModule(0);  // ignored
}

}  // namespace
}  // namespace mv::modules
