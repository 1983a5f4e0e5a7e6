#include <cstdlib>

extern "C" {
__attribute__((visibility("default"))) void* loadPlugin();
__attribute__((visibility("default"))) void unloadPlugin();
}

void* loadPlugin()
{
    std::abort();
}

void unloadPlugin() { }
