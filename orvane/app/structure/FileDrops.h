#pragma once

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/structure/NodeEdit.h"
#include "orvane/app/structure/TreeNodes.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class NodeEditor;
class QMimeData;
class Session;

/// Takes files that are dropped on the scene: models and scenes are added to it, all files of a drop as one step, and
/// an image becomes the texture of a mesh or material.
class FileDrops : public QObject {
    Q_OBJECT

public:
    /// Where files are dropped.
    struct Place {
        std::optional<meridane::NodeRows> node; ///< the node that they are dropped on, as the only row
        std::optional<NodeSpot> spot; ///< between nodes; else the group that is the node, or behind the node
    };

    /// All live longer.
    FileDrops(Session& session, FileFlow& files, NodeEditor& editor);
    ~FileDrops() override;

    /// Why nothing of the data can be taken there; empty if something can.
    [[nodiscard]] QString refusal(const QMimeData& data, const Place& place) const;
    /// What is going to happen, for the status bar.
    [[nodiscard]] QString promise(const QMimeData& data, const Place& place) const;
    /// Takes what can be taken and says why the rest can't.
    void take(const QMimeData& data, const Place& place);

Q_SIGNALS:
    /// Something was added, and is selected.
    void added();
    /// Some files of several couldn't be read, for these reasons.
    void failed(const QString& text);

private:
    /// What is dropped, sorted.
    struct Files {
        QStringList models; // and scenes
        QStringList images;
        bool isScene = false; // a single one
        QString refused; // why the last one that can't be taken can't
        int refusedCount = 0;
    };
    /// Files that are read to be added together.
    struct Batch {
        QStringList waiting;
        std::vector<std::pair<QString, ReadScene>> read;
        orvane::TreeRows spot;
        int scene = 0; // that was open when they were dropped
        QStringList failures; // one reason for each
    };

    [[nodiscard]] Files sort(const QMimeData& data) const;
    [[nodiscard]] bool opens(const Files& files, const Place& place) const;
    [[nodiscard]] NodeSpot spotOf(const Place& place) const;
    void addTexture(const QString& fileName, const meridane::NodeRows& node);
    void readNext();
    void addAll();

    Session& m_session;
    FileFlow& m_files;
    NodeEditor& m_editor;
    std::unique_ptr<Batch> m_batch; // null if no files are being read
};
