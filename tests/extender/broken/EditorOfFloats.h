#pragma once

#include "extender/broken/Broken.h"

#include "meridane/scene/fields/single/NxSFFloat.h"

#include <memory>

/// An editor of the type SFFloat. Of several, the one of the highest address is shown, so a test lets the dock have
/// this one alone.
class EditorOfFloats : public Quiet<OrvEditor> {
public:
    EditorOfFloats()
        : Quiet("Broken dial")
    {
        m_handledType = NxSFFloat::getClassTypeId();
    }

protected:
    void setWidget(QWidget* widget)
    {
        m_ownWidget.reset(widget);
        m_widget = widget;
    }

private:
    std::unique_ptr<QWidget> m_ownWidget;
};
