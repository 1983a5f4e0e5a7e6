#pragma once

#include "orvane/app/base/Result.h"

#include <QImage>
#include <QString>

/// Small pictures of scene files in the user's cache, where file managers keep theirs: each shows those of the other.
/// All functions may block and may be called in any thread.
///
/// Source: the thumbnail standard of freedesktop.org, version 0.9.
class Thumbnails {
public:
    /// The longest side in pixels.
    static constexpr int side = 256;

    /// In the cache of the user.
    Thumbnails();
    /// In another folder.
    explicit Thumbnails(QString folder);

    /// The picture of that file, as it was when it was taken; null if there is none that can be used.
    [[nodiscard]] QImage read(const QString& fileName) const;
    /// Keeps a picture of that file, made smaller, as one of what is in the file now.
    [[nodiscard]] orvane::Result<> write(const QString& fileName, const QImage& picture) const;
    /// Where the picture of that file is kept.
    [[nodiscard]] QString pathOf(const QString& fileName) const;

private:
    [[nodiscard]] QString pathOf(const QString& fileName, const QString& size) const;

    QString m_folder;
};
