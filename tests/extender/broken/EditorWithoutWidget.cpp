#include "extender/broken/EditorOfFloats.h"

BROKEN_EXTENSION(EditorOfFloats)
