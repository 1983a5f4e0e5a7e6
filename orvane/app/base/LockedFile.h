#pragma once

#include "orvane/app/base/Result.h"

#include <QString>

#include <memory>
#include <string_view>

/// A file that is locked as long as the object exists, so that other processes know that it is in use. The lock ends
/// with the process, however it ends. Each function may be called in any thread, one at a time.
class LockedFile {
public:
    /// Makes a file that nobody but the user may read. Fails if there is one already.
    [[nodiscard]] static orvane::Result<std::unique_ptr<LockedFile>> create(const QString& fileName);
    /// Locks a regular file that belongs to the user. Null if there is none, or if it is locked.
    [[nodiscard]] static std::unique_ptr<LockedFile> lock(const QString& fileName);

    ~LockedFile();
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

    [[nodiscard]] const QString& fileName() const noexcept { return m_fileName; }

    /// Appends the bytes, all of them unless it fails.
    [[nodiscard]] orvane::Result<> append(std::string_view bytes);
    /// Waits until the disk has everything.
    [[nodiscard]] orvane::Result<> sync();
    /// Gives the file another name in the same folder. A file that has that name is replaced.
    [[nodiscard]] orvane::Result<> rename(const QString& fileName);
    /// Deletes the file; it stays locked until the object is destroyed.
    void remove();

private:
    LockedFile(QString fileName, int descriptor);
    [[nodiscard]] orvane::Failure failure() const;

    QString m_fileName;
    int m_descriptor;
};
