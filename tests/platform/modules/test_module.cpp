// A module for the module loader's tests: one export of its own.
extern "C" int mv_test_module_answer() {
  return 42;
}
