#pragma once

#include "orvane/extender/OrvPlugin.h"

// What a plug-in's library exports. The map file of the modules hides everything else.
extern "C" {
__attribute__((visibility("default"))) OrvPlugin* loadPlugin();
__attribute__((visibility("default"))) void unloadPlugin();
}
