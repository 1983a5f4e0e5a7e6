#include "extender/plugins/EntryPoints.h"

// Nothing but the stamp that each source of a plug-in has.
