// What the system's libraries keep until the end of the process is no leak of this program.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\nleak:libQt6\nleak:libglib\nleak:libdbus\n";
}
