#pragma once

#include "orvane/app/inspect/ScenePlace.h"

#include <QObject>
#include <QStringList>

#include <span>
#include <string>
#include <vector>

class FileFlow;
class NxNode;
class Session;

/// The nodes of the open scene that the user has marked as favorites. For scenes with a file they are kept in the
/// settings, by the paths that they have in the file.
class FavoriteNodes : public QObject {
    Q_OBJECT

public:
    /// More than this aren't kept, of scenes and of nodes in each.
    static constexpr int mostScenes = 50;
    static constexpr std::size_t mostNodes = 100;

    /// The session lives longer.
    FavoriteNodes(Session& session, QObject* parent);
    ~FavoriteNodes() override;

    /// Keeps favorites that reloads of the file put other nodes in place of.
    void followReloads(const FileFlow& flow);

    [[nodiscard]] bool contains(const NxNode* node) const;
    /// The paths to those that are in the scene, in the order in which they were marked.
    [[nodiscard]] std::vector<std::vector<NxNode*>> paths() const;
    /// Marks the last node of a path, or takes its mark away. Returns false if there are too many.
    bool toggle(std::span<NxNode* const> path);

Q_SIGNALS:
    void changed();

private:
    void load();
    void store();
    void notePaths();
    void findReloaded();
    [[nodiscard]] QStringList pathTexts() const;

    struct Favorite {
        ScenePlace place;
        std::string path; // before a reload
    };

    Session& m_session;
    std::vector<Favorite> m_favorites;
};
