#include "OrvNodeEditor.h"

#include "SelectionDock.h"

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
    orvane::enterShell(*this, m_dock);
}

void OrvNodeEditor::deactivate()
{
    orvane::releaseEditor(*this, m_dock, m_currentEditor);
    OrvExtension::deactivate();
    disconnect(
        OrvServices::getInstance(), &OrvServices::selectedNodeChanged, this, &OrvNodeEditor::s_selectedNodeChanged);
    orvane::leaveShell(*this, m_dock);
}

void OrvNodeEditor::hide()
{
    OrvExtension::hide();
    m_dock->hide();
}

void OrvNodeEditor::load()
{
    m_dock = orvane::makeSelectionDock(QStringLiteral("Node Editor"));
}

void OrvNodeEditor::show()
{
    OrvExtension::show();
    m_dock->show();
}

void OrvNodeEditor::unload()
{
    delete m_dock;
    m_dock = nullptr;
}

void OrvNodeEditor::s_selectedNodeChanged(NxFieldContainer* node)
{
    orvane::showEditor(*this, m_dock, m_currentEditor, node);
}
