#pragma once

#include "FieldEditors/OrvFieldEditors.h"
#include "ToolHarness.h"

#include <QFrame>
#include <QVBoxLayout>

/// Loads an editor and shows it in a window, and takes all that back at the end.
class EditorRun {
public:
    explicit EditorRun(OrvFieldEditors& editor)
        : m_editor(editor)
        , m_layout(new QVBoxLayout(&window))
    {
        m_editor.load();
        m_layout->addWidget(m_editor.getFrame());
        window.show();
    }
    EditorRun(OrvFieldEditors& editor, NxField& field)
        : EditorRun(editor)
    {
        select(&field);
    }
    EditorRun(const EditorRun&) = delete;
    EditorRun& operator=(const EditorRun&) = delete;
    ~EditorRun()
    {
        m_editor.deactivate();
        m_editor.setEditedObject(nullptr);
        m_editor.getFrame()->setParent(nullptr);
        m_editor.unload();
    }

    /// Gives the editor another field, as a dock does.
    void select(NxTypedObject* object)
    {
        if (m_editor.isActive())
            m_editor.deactivate();
        m_editor.setEditedObject(object);
        m_editor.activate();
    }

    /// The only child of that type and name.
    template <typename Child>
    [[nodiscard]] Child* find(const char* name) const
    {
        return m_editor.getFrame()->findChild<Child*>(QString::fromLatin1(name));
    }

    QWidget window;

private:
    OrvFieldEditors& m_editor;
    QVBoxLayout* m_layout;
};
