#include "extender/plugins/EntryPoints.h"

void unloadPlugin() { }
