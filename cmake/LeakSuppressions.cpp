// Fontconfig keeps some memory for the life of the program. The leak sanitizer doesn't report it.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }
// The sanitizer doesn't list the leaks that it suppressed, because the list would be added to the output of
// the programs that tests start.
extern "C" const char* __lsan_default_options();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
