#include "extender/broken/Broken.h"

#include <unistd.h>

OrvPlugin* loadPlugin()
{
    for (;;)
        ::pause();
}

void unloadPlugin() { }
