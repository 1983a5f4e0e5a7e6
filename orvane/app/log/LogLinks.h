#pragma once

#include "orvane/app/log/FileProbe.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

class SceneDocument;

/// A part of a line of the log that leads somewhere.
struct LogLink {
    enum class Kind { File, Folder, Node };

    Kind kind = Kind::File;
    int start = 0; ///< in the text
    int length = 0;
    QString target; ///< an absolute path of a file or folder, or the path of a node or field in the scene
};

/// Finds the paths in lines of the log that exist: files, folders, and nodes and fields of the open scene, such as
/// `/robot/arm.rotation`. Files are looked for in a thread, so their links come later.
class LogLinks : public QObject {
    Q_OBJECT

public:
    using Links = QList<LogLink>;

    /// The document lives longer.
    explicit LogLinks(SceneDocument& document, QObject* parent = nullptr);

    /// The links of a text, in their order. What was found is kept until the scene changes.
    [[nodiscard]] const Links& of(const QString& text);
    /// Forgets what was found.
    void forget();

Q_SIGNALS:
    /// Texts may have other links than before.
    void changed();

private:
    [[nodiscard]] Links find(const QString& text);
    [[nodiscard]] bool addNode(Links& links, const QString& text, qsizetype start);
    [[nodiscard]] bool addFile(Links& links, const QString& text, qsizetype start, qsizetype length);
    [[nodiscard]] bool isNode(const QString& path) const;

    SceneDocument& m_document;
    FileProbe m_files;
    QHash<QString, Links> m_known;
};
