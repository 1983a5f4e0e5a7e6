#pragma once

#include "orvane/extender/OrvEditor.h"

#include <QFrame>
#include <QPointer>

#include <memory>

class NxField;
class QHBoxLayout;
class QToolButton;

namespace orv {

class FieldButtons;

/// The part of a `FieldEditor` that doesn't depend on the class of its fields: a row of the type's label, the widgets
/// of the editor, and the buttons "Set to default" and "Ignore this field".
class FieldEditorBase : public OrvEditor {
    Q_OBJECT

public:
    ~FieldEditorBase() override;

    /// Shows the edited object and follows it. If that is no field of the class, it only records that it is active.
    void activate() override;
    /// Stops following the field.
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

protected:
    FieldEditorBase(NxType handled, const char* name); ///< The name is the one for profiles.

    /// Has this editor replace others, given by the names of the extensions, such as "SFFloat": where a profile lets a
    /// dock use both, the others are left out. To be called in the constructor.
    void replaces(const QStringList& names);

    /// Makes the widgets with `add` and ties them to the field. Called once, before the editor is shown first.
    virtual void build() = 0;

    /// Makes a widget, to the right of those before. The editor owns it.
    template <typename Widget, typename... Arguments>
    Widget& add(Arguments&&... arguments)
    {
        auto* const widget = new Widget(std::forward<Arguments>(arguments)...);
        addWidget(*widget);
        return *widget;
    }

    /// Destroys the widgets. To be called by the destructor of the class that ties them to fields.
    void destroyWidgets();

private:
    /// Follows a field, or none.
    virtual void attachField(NxField* field) = 0;
    virtual void forgetWidgets() = 0;

    void addWidget(QWidget& widget);
    void buildOnce();

    QPointer<QFrame> m_frame; // m_widget, which a dock may own
    QHBoxLayout* m_layout = nullptr; // of the editor's widgets
    std::unique_ptr<FieldButtons> m_buttons;
};

} // namespace orv
