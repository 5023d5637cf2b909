// What the sanitizers are to leave alone in this program: libraries of the system, whose faults are not ours to mend.

extern "C" {

const char* __asan_default_options(); // NOLINT(bugprone-reserved-identifier): the sanitizer's name for it
const char* __asan_default_options() {
    // The web engine frees by a size that it did not allocate by.
    return "new_delete_type_mismatch=0";
}

const char* __lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier): the sanitizer's name for it
const char* __lsan_default_suppressions() {
    return "leak:libpulse\n"
           "leak:libglib-2.0\n"
           "leak:libgstreamer\n"
           "leak:libfontconfig\n"
           // The client of the speech daemon, which nothing of the stack names.
           "leak:__vasprintf_internal\n"
           "leak:libQt6WebEngineCore\n";
}
}
