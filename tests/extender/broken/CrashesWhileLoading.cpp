#include "extender/broken/Broken.h"

#include <csignal>

OrvPlugin* loadPlugin()
{
    std::raise(SIGSEGV);
    return nullptr;
}

void unloadPlugin() { }
