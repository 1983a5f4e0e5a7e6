#pragma once

#include "orvane/app/files/FileWork.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

struct DiskContent;
class DiskWatch;
class QWidget;
class RecentFiles;
class Session;

/// Saves and exports the open scene: the file dialogs, the question before a file is replaced that somebody else has
/// changed, and the writing. Each operation needs its turn among the requests.
class SceneSaving : public QObject {
    Q_OBJECT

public:
    using Next = FileWork::Next;
    using Write = std::function<std::unique_ptr<FileJob>(
        const NxRef<NxGroup>& scene, const QString& fileName, const QString& pathFolder)>;

    /// All of these live longer, apart from the function, which makes the jobs.
    SceneSaving(
        Session& session, RecentFiles& recent, FileWork& work, const DiskWatch& disk, Write write, QWidget* window);

    /// Saves to the scene's own file, or asks for one.
    void save(const Next& next);
    /// Asks for a file and saves to it.
    void saveAs(const Next& next);
    void saveTo(const QString& fileName, const Next& next);
    /// Asks for a file and exports to it.
    void chooseExport();
    /// Writes a file that doesn't become the scene's own.
    void exportTo(const QString& fileName);

Q_SIGNALS:
    /// The user wants to see what has changed in the file instead of saving.
    void compareRequested(const QString& fileName);

private:
    void check(const QString& fileName, const Next& next);
    void askToOverwrite(const QString& fileName, const Next& next);
    void write(const QString& fileName, const QString& text, const Next& next);
    [[nodiscard]] bool mayWrite();

    Session& m_session;
    RecentFiles& m_recent;
    FileWork& m_work;
    const DiskWatch& m_disk;
    Write m_write;
    QWidget* m_window;
};
