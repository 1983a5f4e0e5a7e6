#include "extender/broken/EditorOfFloats.h"

namespace {

class Editor : public EditorOfFloats {
public:
    Editor()
    {
        setWidget(new QWidget);
        m_handledType = {};
    }
};

} // namespace

BROKEN_EXTENSION(Editor)
