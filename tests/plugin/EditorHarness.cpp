#include "EditorHarness.h"

EditorRun::EditorRun(OrvFieldEditors& editor)
    : m_editor(editor)
    , m_layout(new QVBoxLayout(&window))
{
    m_editor.load();
    m_layout->addWidget(m_editor.getFrame());
    window.show();
}

EditorRun::EditorRun(OrvFieldEditors& editor, NxField& field)
    : EditorRun(editor)
{
    select(&field);
}

EditorRun::~EditorRun()
{
    m_editor.deactivate();
    m_editor.setEditedObject(nullptr);
    m_editor.getFrame()->setParent(nullptr);
    m_editor.unload();
}

void EditorRun::select(NxTypedObject* object)
{
    if (m_editor.isActive())
        m_editor.deactivate();
    m_editor.setEditedObject(object);
    m_editor.activate();
}
