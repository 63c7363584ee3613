// What the leak sanitizer isn't to report: fontconfig keeps a little for the life of the program.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }
// Nor is it to list what it left out: programs that tests start would say more than they do.
extern "C" const char* __lsan_default_options();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
