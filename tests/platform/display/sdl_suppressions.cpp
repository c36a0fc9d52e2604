// For tests that start SDL. It never shuts down the message bus library, which therefore keeps one
// allocation of its own.
extern "C" {
const char* __lsan_default_suppressions() { return "leak:libdbus-1.so\n"; }
// SDL takes the length of a four-byte letter that it copied without its end.
const char* __asan_default_suppressions() { return "interceptor_via_lib:libSDL2\n"; }
const char* __lsan_default_options() { return "print_suppressions=0"; }
}
