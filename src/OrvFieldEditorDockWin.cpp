#include "OrvFieldEditorDockWin.h"

#include "SelectionDock.h"

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
    orvane::enterShell(*this, m_dock);
}

void OrvFieldEditorDockWin::deactivate()
{
    orvane::releaseEditor(*this, m_dock, m_currentEditor);
    OrvExtension::deactivate();
    disconnect(OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this,
        &OrvFieldEditorDockWin::s_selectedFieldChanged);
    orvane::leaveShell(*this, m_dock);
}

void OrvFieldEditorDockWin::hide()
{
    OrvExtension::hide();
    m_dock->hide();
}

void OrvFieldEditorDockWin::load()
{
    m_dock = orvane::makeSelectionDock(QStringLiteral("Field Editor"));
}

void OrvFieldEditorDockWin::show()
{
    OrvExtension::show();
    m_dock->show();
}

void OrvFieldEditorDockWin::unload()
{
    delete m_dock;
    m_dock = nullptr;
}

void OrvFieldEditorDockWin::s_selectedFieldChanged(NxField* field)
{
    orvane::showEditor(*this, m_dock, m_currentEditor, field);
}
