#pragma once

#include "orvane/app/base/LockedFile.h"
#include "orvane/app/base/Result.h"

#include <QString>

#include <memory>
#include <vector>

/// The folder of the files from which unsaved changes are recovered. Each open scene of each running program has a file
/// of its own there, which the program keeps locked. A file that isn't locked was left by a program that didn't end
/// properly. A file has its final name, with the extension `.recovery`, once there is a scene in it.
class RecoveryFolder {
public:
    /// The user's own folder is `orvane/recovery` in the folder for the state of programs: `XDG_STATE_HOME`, or
    /// `~/.local/state`.
    explicit RecoveryFolder(const QString& path = defaultPath());
    [[nodiscard]] static QString defaultPath();

    [[nodiscard]] const QString& path() const noexcept { return m_path; }

    /// Makes an empty file that has no final name yet, and the folder if there is none.
    [[nodiscard]] orvane::Result<std::unique_ptr<LockedFile>> createFile() const;
    /// The final name for such a file.
    [[nodiscard]] static QString finalName(const QString& fileName);
    /// Locks the files that no running program uses, the newest first. Deletes those without a final name.
    [[nodiscard]] std::vector<std::unique_ptr<LockedFile>> lockAbandoned() const;

private:
    [[nodiscard]] std::vector<std::unique_ptr<LockedFile>> lock(const QString& withExtension) const;

    QString m_path;
};
