#pragma once

#include "TrialScene.h"
#include "TrialShell.h"

#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvServices.h"

#include <QDockWidget>
#include <QStringList>

#include <optional>

class NxError;
class OrvEditor;

/// Tries a plug-in as a user would, and reports each step in one line.
class PluginTrial {
public:
    /// `program` reads a scene without the plug-in when it is called with `--reopen FILE`.
    PluginTrial(QString fileName, QString program);
    ~PluginTrial();

    /// Runs all steps. Returns whether all went well.
    [[nodiscard]] bool run();

private:
    [[nodiscard]] bool load();
    void driveEditors(bool thenUndo);
    void driveEditor(OrvEditor& editor, NxTypedObject& object, bool thenUndo);
    void driveShell();
    void saveAndReopen();
    void switchProfiles();
    void unload();

    /// Undoes everything; a failure if the scene isn't as it was.
    void undoTo(const std::string& before, const QString& what);
    void note(const QString& line);
    void fail(const QString& line);
    static void noteError(const NxError* error, void* trial);

    QString m_fileName;
    QString m_program;
    OrvServices m_services;
    TrialShell m_shell;
    QDockWidget m_dock;
    OrvPluginsManager m_manager;
    std::optional<TrialScene> m_scene;
    QString m_step; // what goes on
    int m_failures = 0;
};
