#pragma once

#include "FieldEditors/OrvFieldEditors.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/VbString.h"
#include "meridane/scene/NxField.h"
#include "meridane/scene/NxFieldGallery.h"
#include "meridane/scene/NxRef.h"

#include <QApplication>
#include <QDockWidget>
#include <QFrame>
#include <QMainWindow>
#include <QRegularExpression>
#include <QStringList>
#include <QToolBar>
#include <QVBoxLayout>
#include <QtTest>

/// The services of the tool, which also count the commands.
class RecordingServices final : public OrvServices {
public:
    void pushCommand(OrvCommand* command) override
    {
        ++pushed;
        OrvServices::pushCommand(command);
    }

    int pushed = 0;
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

/// What every editor test needs of the tool: the services, a shell, and a node with a field of every class. Made anew
/// for each test function.
class EditorHarness {
public:
    EditorHarness()
    {
        // All but the one warning that the platform without a display gives for every window.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support propagateSizeHints)")));
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
    /// Whether a test left no widget behind, to be asked when everything it made is gone.
    static bool noWidgetIsLeft() { return QApplication::topLevelWidgets().isEmpty(); }

    RecordingServices services;
    RecordingShell shell;
    NxRef<NxFieldGallery> node = new NxFieldGallery;
};

/// Loads an editor and shows it in a window, and takes all that back at the end.
class EditorRun {
public:
    explicit EditorRun(OrvFieldEditors& editor)
        : m_editor(editor)
        , m_layout(new QVBoxLayout(&window))
    {
        m_editor.load();
        m_layout->addWidget(m_editor.getFrame());
        window.show();
    }
    EditorRun(OrvFieldEditors& editor, NxField& field)
        : EditorRun(editor)
    {
        select(&field);
    }
    EditorRun(const EditorRun&) = delete;
    EditorRun& operator=(const EditorRun&) = delete;
    ~EditorRun()
    {
        m_editor.deactivate();
        m_editor.setEditedObject(nullptr);
        m_editor.getFrame()->setParent(nullptr);
        m_editor.unload();
    }

    /// Gives the editor another field, as a dock does.
    void select(NxTypedObject* object)
    {
        if (m_editor.isActive())
            m_editor.deactivate();
        m_editor.setEditedObject(object);
        m_editor.activate();
    }

    /// The only child of that type and name.
    template <typename Child>
    [[nodiscard]] Child* find(const char* name) const
    {
        return m_editor.getFrame()->findChild<Child*>(QString::fromLatin1(name));
    }

    QWidget window;

private:
    OrvFieldEditors& m_editor;
    QVBoxLayout* m_layout;
};
