#include "OrvFieldEditorDockWin.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"

#include <QDockWidget>

OrvFieldEditorDockWin::OrvFieldEditorDockWin()
{
    m_name = "Field Editor";
    m_author = "KLD";
    m_description = "Field Editor for Orvane.";
    m_version = "1.0.0";
}

OrvFieldEditorDockWin::~OrvFieldEditorDockWin() = default;

void OrvFieldEditorDockWin::activate()
{
    OrvExtension::activate();
    connect(OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this,
        &OrvFieldEditorDockWin::s_selectedFieldChanged);
    selectionDock().enterShell();
}

void OrvFieldEditorDockWin::deactivate()
{
    selectionDock().release();
    OrvExtension::deactivate();
    disconnect(OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this,
        &OrvFieldEditorDockWin::s_selectedFieldChanged);
    selectionDock().leaveShell();
}

void OrvFieldEditorDockWin::hide()
{
    OrvExtension::hide();
    m_dock->hide();
}

void OrvFieldEditorDockWin::load()
{
    selectionDock().load(QStringLiteral("Field Editor"));
}

void OrvFieldEditorDockWin::show()
{
    OrvExtension::show();
    m_dock->show();
}

void OrvFieldEditorDockWin::unload()
{
    selectionDock().unload();
}

void OrvFieldEditorDockWin::s_selectedFieldChanged(NxField* field)
{
    selectionDock().show(field);
}
