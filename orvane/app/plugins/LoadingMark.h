#pragma once

#include "orvane/app/base/LockedFile.h"

#include <QString>
#include <QStringList>

#include <memory>

/// A note on disk of the plug-in that is being loaded, so that the next start knows of one that ended the program.
///
/// Loading a plug-in runs its code, which can crash, exit or hang. Each running program has a file of its own, which it
/// keeps locked and removes when all plug-ins have been loaded; a file that isn't locked was left by a program that
/// didn't come so far. A folder that can't be written to is no failure: then nothing is noted.
class LoadingMark {
public:
    /// Takes the notes that programs have left in the folder, and removes them.
    explicit LoadingMark(const QString& folder = defaultFolder());
    ~LoadingMark();
    LoadingMark(const LoadingMark&) = delete;
    LoadingMark& operator=(const LoadingMark&) = delete;

    /// `orvane/loading` in the user's folder for the state of programs.
    [[nodiscard]] static QString defaultFolder();

    /// The files that were being loaded when a program ended, each once.
    [[nodiscard]] const QStringList& unfinished() const noexcept { return m_unfinished; }

    /// Notes that this file is loaded from now on, until another one is or the object is destroyed.
    void begin(const QString& fileName);

private:
    void takeAbandoned();

    QString m_folder;
    QStringList m_unfinished;
    std::unique_ptr<LockedFile> m_file; // once something has been noted
    bool m_isWritable = true;
};
