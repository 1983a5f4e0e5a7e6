#pragma once

#include "OrvFieldEditorDockWin.h"
#include "OrvNodeEditor.h"

#include "orvane/extender/OrvPlugin.h"

/// The default plug-in: owns every extension of this library.
class OrvDefaults final : public OrvPlugin {
public:
    OrvDefaults();
    /// Registers the extensions and has the host load them.
    void load() override;
    ~OrvDefaults() override;

private:
    // In this order the docks meet the editors, since they walk them by address; among editors of the same type the one
    // declared last wins.
    OrvFieldEditorDockWin m_fieldEditorDock;
    OrvNodeEditor m_nodeEditor;
};
