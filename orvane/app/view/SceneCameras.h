#pragma once

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QString>

#include <optional>

class AppSettings;

/// The viewpoints from which the user last looked at scenes, kept in the settings for the latest scenes.
class SceneCameras {
public:
    /// For so many scenes.
    static constexpr int mostScenes = 50;

    /// The settings outlive this.
    explicit SceneCameras(AppSettings& settings)
        : m_settings(settings)
    {
    }

    /// The viewpoint for the scene of that file, or nothing.
    [[nodiscard]] std::optional<NxViewpoint> find(const QString& fileName) const;
    void store(const QString& fileName, const NxViewpoint& viewpoint);

private:
    AppSettings& m_settings;
};
