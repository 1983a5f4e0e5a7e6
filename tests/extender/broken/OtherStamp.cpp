#include <cstdlib>

// As of a library that was built with another version's headers.
__asm__(".pushsection .note.orvane,\"a\",%note\n"
        ".balign 4\n"
        ".long 2f - 1f\n"
        ".long 4f - 3f\n"
        ".long 1\n"
        "1: .asciz \"Orvane\"\n"
        "2: .balign 4\n"
        "3: .asciz \"0123456789abcdef (another compiler)\"\n"
        "4: .balign 4\n"
        ".popsection\n");

extern "C" {
__attribute__((visibility("default"))) void* loadPlugin();
__attribute__((visibility("default"))) void unloadPlugin();
}

void* loadPlugin()
{
    std::abort();
}

void unloadPlugin() { }
