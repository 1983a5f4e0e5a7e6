#pragma once

#include "Patience.h"
#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/recovery/RecoveredText.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/LoadJob.h"
#include "orvane/app/recovery/RecoverJob.h"
#include "orvane/app/recovery/RecoveryFolder.h"
#include "orvane/app/recovery/RecoveryScan.h"
#include "orvane/app/recovery/SceneRecovery.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/SceneDisposal.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/SetFieldCommand.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

/// A scene that is edited, with its recovery files in a folder of their own.
class RecoveryCase : public QObject {
protected:
    void startScene(const SceneRecovery::Limits& limits = {})
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_disposal = std::make_unique<SceneDisposal>();
        m_services = std::make_unique<OrvServices>();
        m_document = std::make_unique<SceneDocument>(*m_services, *m_disposal);
        m_recovery = std::make_unique<SceneRecovery>(*m_services, *m_document, recoveryFolder(), limits);
    }

    void endScene()
    {
        m_document->close();
        m_recovery.reset();
        m_document.reset();
        m_services.reset();
        m_disposal.reset();
    }

    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] RecoveryFolder recoveryFolder() const { return RecoveryFolder(path(QStringLiteral("recovery"))); }

    /// Opens a scene file with that text.
    void openFile(const QString& name, const char* text)
    {
        writeFile(path(name), text);
        LoadJob job(path(name));
        const QSignalSpy finished(&job, &FileJob::finished);
        const QSignalSpy failed(&job, &FileJob::failed);
        job.start();
        QTRY_VERIFY_WITH_TIMEOUT(finished.size() + failed.size() > 0, testPatience);
        QVERIFY2(failed.isEmpty(), job.failure().text().c_str());
        const ReadScene read = job.take();
        m_document->open(read.journal, path(name), read.content);
    }

    /// Gives a node of the scene another name, as one step.
    void rename(const char* nodePath, const char* name)
    {
        const NxScenePath::Target target = NxScenePath::find(m_document->scene(), nodePath);
        QVERIFY2(target.error.empty(), target.error.c_str());
        rename(target.nodes.back(), name);
    }
    void rename(NxNode* node, const char* name)
    {
        m_services->pushCommand(new RenameNodeCommand(node, VbString(name)));
    }

    [[nodiscard]] std::string text() const { return NxSceneWriter::toText(m_document->scene()); }

    /// The recovery files on the disk.
    [[nodiscard]] QStringList files() const { return filesWith(QStringLiteral("*.recovery")); }
    /// Those that have no scene yet.
    [[nodiscard]] QStringList unfinishedFiles() const { return filesWith(QStringLiteral("*.part")); }

    /// The text of the scene that a crash at this moment would leave, from the only file; a message in brackets if it
    /// can't be recovered, and "none" if there is nothing to lose.
    [[nodiscard]] std::string textAfterCrash() const
    {
        const QStringList names = files();
        if (names.empty())
            return "none";
        return names.size() > 1 ? "[several files]" : textOf(names.front());
    }

    /// The same of one recovery file.
    [[nodiscard]] std::string textOf(const QString& fileName) const
    {
        // A copy, since the file itself is locked.
        const RecoveryFolder crashed(path(QStringLiteral("crashed")));
        QDir(crashed.path()).removeRecursively();
        QDir().mkpath(crashed.path());
        QFile::copy(fileName, crashed.path() + QStringLiteral("/copy.recovery"));
        RecoveryScan scan;
        std::vector<std::shared_ptr<AbandonedScene>> scenes;
        QObject::connect(&scan, &RecoveryScan::found, &scan,
            [&scenes](const std::shared_ptr<AbandonedScene>& scene) { scenes.push_back(scene); });
        const QSignalSpy finished(&scan, &RecoveryScan::finished);
        scan.start(crashed);
        if (!QTest::qWaitFor([&finished] { return !finished.isEmpty(); }, testPatience))
            return "[the scan doesn't end]";
        if (scenes.empty())
            return "none";
        if (!scenes.front()->problem.isEmpty())
            return '[' + scenes.front()->problem.toStdString() + ']';
        return RecoveredText::of(scenes.front()->file->fileName());
    }

private:
    [[nodiscard]] QStringList filesWith(const QString& filter) const
    {
        const QDir folder(recoveryFolder().path());
        QStringList names;
        for (const QString& name : folder.entryList({filter}, QDir::Files))
            names.append(folder.filePath(name));
        return names;
    }

protected:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SceneDisposal> m_disposal;
    std::unique_ptr<OrvServices> m_services;
    std::unique_ptr<SceneDocument> m_document;
    std::unique_ptr<SceneRecovery> m_recovery;
};
