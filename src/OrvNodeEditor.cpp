#include "OrvNodeEditor.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxFieldContainer.h"

#include <QDockWidget>

OrvNodeEditor::OrvNodeEditor()
{
    m_name = "Node Editor";
    m_author = "KLD";
    m_description = "Node Editor for Orvane.";
    m_version = "1.0.0";
}

OrvNodeEditor::~OrvNodeEditor() = default;

void OrvNodeEditor::activate()
{
    OrvExtension::activate();
    connect(OrvServices::getInstance(), &OrvServices::selectedNodeChanged, this, &OrvNodeEditor::s_selectedNodeChanged);
    selectionDock().enterShell();
}

void OrvNodeEditor::deactivate()
{
    selectionDock().release();
    OrvExtension::deactivate();
    disconnect(
        OrvServices::getInstance(), &OrvServices::selectedNodeChanged, this, &OrvNodeEditor::s_selectedNodeChanged);
    selectionDock().leaveShell();
}

void OrvNodeEditor::hide()
{
    OrvExtension::hide();
    m_dock->hide();
}

void OrvNodeEditor::load()
{
    selectionDock().load(QStringLiteral("Node Editor"));
}

void OrvNodeEditor::show()
{
    OrvExtension::show();
    m_dock->show();
}

void OrvNodeEditor::unload()
{
    selectionDock().unload();
}

void OrvNodeEditor::s_selectedNodeChanged(NxFieldContainer* node)
{
    selectionDock().show(node);
}
