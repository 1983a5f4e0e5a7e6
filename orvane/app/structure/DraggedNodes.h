#pragma once

#include "orvane/app/structure/NodeMimeData.h"

#include <QMimeData>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

/// Nodes under way by drag and drop: as nodes for a window of the tool, as a scene file for a file manager and other
/// programs that take files, as plain text for an editor, and as the paths of the nodes.
///
/// Nothing is written before somebody asks for it, which other programs do when they get the drop. The file stays as
/// long as the program runs, since file managers copy it in their own time.
class DraggedNodes : public QMimeData {
    Q_OBJECT

public:
    struct Content {
        std::vector<NxRef<NxNode>> nodes;
        orvane::NodeOrigin origin;
        QStringList paths; ///< of the nodes, such as /robot/arm
        QString name; ///< of the file, without an extension
    };

    /// Called with the reason why a form of the nodes can't be given.
    using Say = std::function<void(const QString& reason)>;

    DraggedNodes(Content content, Say say);
    ~DraggedNodes() override;

    /// The format of the paths, one a line.
    [[nodiscard]] static QString pathMimeType();
    /// The name of a file for a node, which any file system takes.
    [[nodiscard]] static QString fileNameFor(const QString& nodeName);

    [[nodiscard]] QStringList formats() const override;

protected:
    [[nodiscard]] QVariant retrieveData(const QString& mimeType, QMetaType type) const override;

private:
    [[nodiscard]] const QMimeData* written() const;
    [[nodiscard]] QByteArray fileUrl() const;

    Content m_content;
    Say m_say;
    mutable std::unique_ptr<QMimeData> m_written; // once it was asked for
    mutable QByteArray m_fileUrl;
    mutable bool m_hasFailed = false;
};
