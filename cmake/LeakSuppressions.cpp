// What the leak sanitizer isn't to report: fontconfig keeps a little for the life of the program.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }
