#pragma once

#include "DockWindow.h"
#include "OrvDefaults.h"

#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

namespace bench {

/// The host framework with the default plug-in. Its profile runs the dock of field editors, which controls every
/// editor. `node` has a field of every class.
class EditorHost final : public OrvShell {
public:
    EditorHost();
    ~EditorHost();

    void addDockWidget(QDockWidget* dock, int area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void announceExtension(OrvExtension* extension, int value) override;
    void withdrawExtension(OrvExtension* extension) override;
    void addToolBar(QToolBar* toolBar, int area) override;
    void removeToolBar(QToolBar* toolBar) override;

    /// The field of the node that the editor is shown for, or null.
    [[nodiscard]] NxField* fieldOf(OrvEditor& editor) const;

    OrvServices services;
    DockWindow window;
    OrvDefaults plugin;
    QDockWidget* dock = nullptr;
    NxRef<NxFieldGallery> node;
    OrvPluginsManager manager;
};

} // namespace bench
