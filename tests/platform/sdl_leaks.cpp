// For tests that start SDL: it never shuts down the message bus library, which therefore keeps one
// allocation of its own.
extern "C" {
const char* __lsan_default_suppressions() { return "leak:libdbus-1.so\n"; }
const char* __lsan_default_options() { return "print_suppressions=0"; }
}
