// The sanitizers call these functions for their default options.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
const char* __asan_default_options();
const char* __lsan_default_options();
const char* __lsan_default_suppressions();

// libsanitizer guesses where the thread-local variables of a loaded library are. If the block that contains
// them begins a page, it takes the block's header for one of glibc 2.19, reads two wrong numbers from it, and
// the leak sanitizer crashes with "Tracer caught signal 11". Without the guess it finds these blocks like all
// others, through the pointers of the dynamic linker.
const char* __asan_default_options() { return "intercept_tls_get_addr=0"; }

// The sanitizer doesn't list the leaks that it suppressed, because the list would be added to the output of
// the programs that tests start.
const char* __lsan_default_options() { return "print_suppressions=0"; }

// Fontconfig keeps some memory for the life of the program, and setlocale doesn't free the folders that
// LOCPATH names.
const char* __lsan_default_suppressions() { return "leak:libfontconfig\nleak:__argz_add_sep"; }
}
// NOLINTEND(bugprone-reserved-identifier)
