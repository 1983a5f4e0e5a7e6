#include "SelectionDock.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvProfileSetting.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/base/types/NxTypedObject.h"

#include <QDockWidget>
#include <QPointer>

namespace orvane {

SelectionDock::SelectionDock(OrvExtension& extension, QDockWidget*& dock, OrvEditor*& currentEditor)
    : m_extension(extension)
    , m_dock(dock)
    , m_currentEditor(currentEditor)
{
}

void SelectionDock::load(const QString& title)
{
    m_dock = new QDockWidget;
    m_dock->setAcceptDrops(false);
    m_dock->setWindowTitle(title);
    m_dock->hide();
}

void SelectionDock::unload()
{
    delete m_dock;
    m_dock = nullptr;
}

void SelectionDock::enterShell()
{
    OrvShell* const shell = OrvShell::getInstance();
    shell->addDockWidget(m_dock, Qt::RightDockWidgetArea);
    shell->announceExtension(&m_extension, 1);
}

void SelectionDock::leaveShell()
{
    OrvShell* const shell = OrvShell::getInstance();
    shell->removeDockWidget(m_dock);
    shell->withdrawExtension(&m_extension);
}

void SelectionDock::show(NxTypedObject* object)
{
    release();
    if (object == nullptr)
        return;
    OrvEditor* const best = bestEditor(*object);
    if (best == nullptr)
        return;
    const QPointer<OrvEditor> living(best); // it may delete itself
    best->setEditedObject(object);
    m_dock->setWidget(best->getWidget());
    try {
        best->activate();
    } catch (...) {
        if (living)
            takeOut(*best);
        throw;
    }
    if (!living) {
        m_dock->setWidget(nullptr);
        return;
    }
    m_currentEditor = best;
    m_extension.show();
}

void SelectionDock::takeOut(const OrvEditor& editor)
{
    m_dock->setWidget(nullptr);
    editor.getWidget()->setParent(nullptr);
}

void SelectionDock::release()
{
    if (m_currentEditor == nullptr)
        return;
    // An editor that throws is given up as well, or the dock would call it again and again.
    const QPointer<OrvEditor> living(m_currentEditor); // it may delete itself
    try {
        m_currentEditor->deactivate();
        if (living)
            m_currentEditor->setEditedObject(nullptr);
    } catch (...) {
        giveUp(living);
        throw;
    }
    giveUp(living);
}

void SelectionDock::giveUp(const OrvEditor* editor)
{
    if (editor != nullptr)
        takeOut(*editor);
    else
        m_dock->setWidget(nullptr);
    m_currentEditor = nullptr;
    m_extension.hide();
}

// The controlled editor with the most derived handled type that fits. Of several that handle the same type, the last
// one by address.
OrvEditor* SelectionDock::bestEditor(const NxTypedObject& object) const
{
    OrvEditor* best = nullptr;
    for (const auto& controlled : m_extension.getProfileSetting()->getControlledExtensions()) {
        auto* const editor = dynamic_cast<OrvEditor*>(controlled.first);
        if (editor == nullptr || !object.getTypeId().isDerivedFrom(editor->getHandledType()))
            continue;
        if (best == nullptr || editor->getHandledType().isDerivedFrom(best->getHandledType()))
            best = editor;
    }
    return best;
}

} // namespace orvane
