#include "extender/broken/Broken.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/single/NxSFFloat.h"

#include <QLabel>

namespace {

// As one that rebuilds its widget for each object, and forgets that the dock has the former one.
class Editor : public Quiet<OrvEditor> {
public:
    Editor()
        : Quiet("Broken dial")
    {
        m_handledType = NxSFFloat::getClassTypeId();
        m_widget = new QLabel;
    }

    void activate() override
    {
        Quiet::activate();
        delete m_widget;
    }
};

} // namespace

BROKEN_EXTENSION(Editor)
