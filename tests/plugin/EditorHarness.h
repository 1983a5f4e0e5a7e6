#pragma once

#include "FieldEditors/OrvFieldEditors.h"
#include "ToolHarness.h"

#include <QFrame>
#include <QVBoxLayout>

/// Loads an editor and shows it in a window, and takes all that back at the end.
class EditorRun {
public:
    explicit EditorRun(OrvFieldEditors& editor);
    EditorRun(OrvFieldEditors& editor, NxField& field);
    EditorRun(const EditorRun&) = delete;
    EditorRun& operator=(const EditorRun&) = delete;
    ~EditorRun();

    /// Gives the editor another field, as a dock does.
    void select(NxTypedObject* object);

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
