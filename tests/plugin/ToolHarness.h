#pragma once

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>
#include <QToolBar>

#include <vector>

/// The services of the tool, which also count the commands and keep them in reach.
class RecordingServices final : public OrvServices {
public:
    RecordingServices();
    ~RecordingServices() override;
    void pushCommand(OrvCommand* command) override;

    int pushed = 0;
    std::vector<OrvCommand*> commands; // the history owns them
};

/// A shell with a main window of its own that writes down what extensions ask of it.
class RecordingShell final : public OrvShell {
public:
    RecordingShell();
    ~RecordingShell() override;
    void addDockWidget(QDockWidget* dock, int area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void announceExtension(OrvExtension* extension, int value) override;
    void withdrawExtension(OrvExtension* extension) override;
    void addToolBar(QToolBar* toolBar, int area) override;
    void removeToolBar(QToolBar* toolBar) override;

    QStringList calls;
    QMainWindow window;
};

/// What tests of the plug-in need of the tool: the services, a shell, and a node with a field of every class. Made
/// for each test function.
class ToolHarness {
public:
    ToolHarness();
    ~ToolHarness();
    ToolHarness(const ToolHarness&) = delete;
    ToolHarness& operator=(const ToolHarness&) = delete;

    /// Has the sensors called that wait, as the tool does from its event loop.
    static void pump();
    /// The text form of a field.
    static QString textOf(const NxField& field);
    /// The field of a gallery that is of a type word such as "SFFloat".
    static NxField* fieldOf(NxFieldGallery& gallery, const QString& type);
    /// Whether a test left no widget behind, to be asked when everything it made is gone.
    static bool noWidgetIsLeft();

    RecordingServices services;
    RecordingShell shell;
    NxRef<NxFieldGallery> node;
};
