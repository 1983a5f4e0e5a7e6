#pragma once

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QString>

#include <vector>

class AppSettings;

/// A viewpoint to come back to.
struct ViewBookmark {
    QString name; ///< one line, not empty
    NxViewpoint viewpoint;

    friend bool operator==(const ViewBookmark&, const ViewBookmark&) = default;
};

/// The bookmarks of scenes, kept in the settings for the latest files.
class ViewBookmarks {
public:
    static constexpr int mostFiles = 50;
    /// Of one file.
    static constexpr int mostBookmarks = 99;

    /// The settings outlive this.
    explicit ViewBookmarks(AppSettings& settings)
        : m_settings(settings)
    {
    }

    /// Those of the scene of that file, in the order of the user.
    [[nodiscard]] std::vector<ViewBookmark> find(const QString& fileName) const;
    /// Keeps these for the file, in place of those before.
    void store(const QString& fileName, const std::vector<ViewBookmark>& bookmarks);

private:
    AppSettings& m_settings;
};
