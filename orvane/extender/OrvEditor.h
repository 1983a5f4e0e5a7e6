#pragma once

#include "orvane/extender/OrvExtension.h"

#include "meridane/base/types/NxType.h"

class NxTypedObject;
class QWidget;

/// An extension that edits objects of one type, and of the types that derive from it.
///
/// A dock, not the host, sets its object, shows its widget and activates it.
class OrvEditor : public OrvExtension {
    Q_OBJECT

public:
    ~OrvEditor() override;

    /// The type of object that this editor edits.
    [[nodiscard]] virtual NxType getHandledType();
    /// Stores the object, which isn't owned; null clears it.
    virtual void setEditedObject(NxTypedObject* object);
    [[nodiscard]] virtual NxTypedObject* getEditedObject() const; ///< The object that was set last, or null.
    /// The widget to show. The editor owns it while it has no parent.
    [[nodiscard]] virtual QWidget* getWidget() const;

protected:
    OrvEditor();

    /// Set by the constructor of the concrete editor.
    NxType m_handledType;
    NxTypedObject* m_editedObject = nullptr; ///< Not owned; null while nothing is edited.
    /// Set by the constructor of the concrete editor.
    QWidget* m_widget = nullptr;
};
