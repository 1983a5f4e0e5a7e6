#pragma once

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/VbName.h"
#include "meridane/base/VbString.h"
#include "meridane/scene/NxField.h"
#include "meridane/scene/NxFieldGallery.h"
#include "meridane/scene/NxRef.h"

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
    void pushCommand(OrvCommand* command) override
    {
        ++pushed;
        commands.push_back(command);
        OrvServices::pushCommand(command);
    }

    int pushed = 0;
    std::vector<OrvCommand*> commands; // the history owns them
};

/// A shell with a main window of its own that writes down what extensions ask of it.
class RecordingShell final : public OrvShell {
public:
    void addDockWidget(QDockWidget* dock, int area) override
    {
        calls << QStringLiteral("addDockWidget %1 %2").arg(dock->windowTitle()).arg(area);
        window.addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
        dock->hide();
    }
    void removeDockWidget(QDockWidget* dock) override
    {
        calls << QStringLiteral("removeDockWidget %1").arg(dock->windowTitle());
        window.removeDockWidget(dock);
        dock->setParent(nullptr);
    }
    void announceExtension(OrvExtension* extension, int value) override
    {
        calls << QStringLiteral("announceExtension %1 %2").arg(nameOf(extension)).arg(value);
    }
    void withdrawExtension(OrvExtension* extension) override
    {
        calls << QStringLiteral("withdrawExtension %1").arg(nameOf(extension));
    }
    void addToolBar(QToolBar* toolBar, int area) override
    {
        calls << QStringLiteral("addToolBar %1 %2").arg(toolBar->windowTitle()).arg(area);
        window.addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
    }
    void removeToolBar(QToolBar* toolBar) override
    {
        calls << QStringLiteral("removeToolBar %1").arg(toolBar->windowTitle());
        window.removeToolBar(toolBar);
        toolBar->setParent(nullptr);
    }

    QStringList calls;
    QMainWindow window;

private:
    static QString nameOf(const OrvExtension* extension) { return QString::fromUtf8(extension->getName().toUtf8()); }
};

/// What tests of the plug-in need of the tool: the services, a shell, and a node with a field of every class. Made anew
/// for each test function.
class ToolHarness {
public:
    ToolHarness()
    {
        // All but those that the platform without a display gives for every window and popup, and those that converting
        // an image and taking a cell's editor away from its table are meant to cause.
        QTest::failOnWarning(QRegularExpression(
            QStringLiteral("^(?!This plugin does not support (propagateSizeHints|raise|grabbing the (keyboard|mouse))|"
                           "QImage::setColor: Index out of bound 0$|"
                           "QAbstractItemView::(commitData|closeEditor) called with an editor that does not belong)")));
    }

    /// Has the sensors called that wait, as the tool does from its event loop.
    static void pump() { NxDelayQueue::getDefault().process(); }
    /// The text form of a field.
    static QString textOf(const NxField& field)
    {
        VbString text;
        field.get(text);
        return QString::fromUtf8(text.toUtf8());
    }
    /// The field of a gallery that is of a type word such as "SFFloat".
    static NxField* fieldOf(NxFieldGallery& gallery, const QString& type)
    {
        const QByteArray name = "sf" + type.mid(2).toLatin1();
        return gallery.getField(VbName(name.constData()));
    }
    /// Whether a test left no widget behind, to be asked when everything it made is gone.
    static bool noWidgetIsLeft() { return QApplication::topLevelWidgets().isEmpty(); }

    RecordingServices services;
    RecordingShell shell;
    NxRef<NxFieldGallery> node = new NxFieldGallery;
};
