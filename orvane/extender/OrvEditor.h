#pragma once

#include "orvane/extender/OrvExtension.h"

#include "meridane/base/types/NxType.h"

class NxTypedObject;
class QWidget;

/// An extension that edits objects of one type, and of the types that derive from it.
///
/// A dock gives it the object, shows its widget and activates it; the host doesn't.
class OrvEditor : public OrvExtension {
    Q_OBJECT

public:
    ~OrvEditor() override;

    /// The type of object that this editor is made for.
    [[nodiscard]] virtual NxType getHandledType();
    /// Stores the object, which isn't owned; null clears it.
    virtual void setEditedObject(NxTypedObject* object);
    [[nodiscard]] virtual NxTypedObject* getEditedObject() const;
    /// The widget to show. The editor owns it while it has no parent.
    [[nodiscard]] virtual QWidget* getWidget() const;

protected:
    OrvEditor();

    /// Written by the constructor of the concrete editor.
    NxType m_handledType;
    NxTypedObject* m_editedObject = nullptr;
    /// Written by the constructor of the concrete editor.
    QWidget* m_widget = nullptr;
};
