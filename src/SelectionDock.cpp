#include "SelectionDock.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvProfileSetting.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/base/types/NxTypedObject.h"

#include <QDockWidget>

namespace orvane {

QDockWidget* makeSelectionDock(const QString& title)
{
    auto* const dock = new QDockWidget;
    dock->setAcceptDrops(false);
    dock->setWindowTitle(title);
    dock->hide();
    return dock;
}

void enterShell(OrvExtension& extension, QDockWidget* dock)
{
    OrvShell* const shell = OrvShell::getInstance();
    shell->addDockWidget(dock, Qt::RightDockWidgetArea);
    shell->announceExtension(&extension, 1);
}

void leaveShell(OrvExtension& extension, QDockWidget* dock)
{
    OrvShell* const shell = OrvShell::getInstance();
    shell->removeDockWidget(dock);
    shell->withdrawExtension(&extension);
}

OrvEditor* findBestEditor(const OrvProfileSetting& setting, const NxTypedObject& object)
{
    OrvEditor* best = nullptr;
    for (const auto& controlled : setting.getControlledExtensions()) {
        auto* const editor = dynamic_cast<OrvEditor*>(controlled.first);
        if (editor == nullptr || !object.getTypeId().isDerivedFrom(editor->getHandledType()))
            continue;
        if (best == nullptr || editor->getHandledType().isDerivedFrom(best->getHandledType()))
            best = editor;
    }
    return best;
}

void releaseEditor(OrvExtension& extension, QDockWidget* dock, OrvEditor*& currentEditor)
{
    if (currentEditor == nullptr)
        return;
    currentEditor->deactivate();
    currentEditor->setEditedObject(nullptr);
    dock->setWidget(nullptr);
    currentEditor->getWidget()->setParent(nullptr);
    currentEditor = nullptr;
    extension.hide();
}

void showEditor(OrvExtension& extension, QDockWidget* dock, OrvEditor*& currentEditor, NxTypedObject* object)
{
    releaseEditor(extension, dock, currentEditor);
    if (object == nullptr)
        return;
    OrvEditor* const best = findBestEditor(*extension.getProfileSetting(), *object);
    if (best == nullptr)
        return;
    best->setEditedObject(object);
    dock->setWidget(best->getWidget());
    best->activate();
    currentEditor = best;
    extension.show();
}

} // namespace orvane
