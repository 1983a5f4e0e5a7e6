#pragma once

#include "meridane/base/ContentHash.h"

#include <QString>

/// What is on disk under the name of a file.
struct DiskContent {
    enum class Kind {
        File,
        Missing, ///< nothing
        NoFile, ///< a folder or something else that is no file
        Unreadable,
    };

    Kind kind = Kind::Missing;
    meridane::ContentHash hash; ///< of a `File`
    QString reason; ///< why it can't be read, with its name, for the others

    friend bool operator==(const DiskContent&, const DiskContent&) = default;

    [[nodiscard]] bool isFile(const meridane::ContentHash& content) const
    {
        return kind == Kind::File && hash == content;
    }
};
