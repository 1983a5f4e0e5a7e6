#pragma once

#include "orvane/app/files/disk/DiskWatch.h"

#include <QObject>
#include <QString>

class FileFlow;
class MessageBar;
class SceneDocument;

/// Reports in the message bar that the file of the open scene has changed on disk, with buttons to reload it, to keep
/// the scene, and to compare both. On request it reloads the file by itself while the scene has no changes.
class DiskChangeBar : public QObject {
    Q_OBJECT

public:
    /// All of these live longer than the object.
    DiskChangeBar(SceneDocument& document, FileFlow& flow, MessageBar& messages, QObject* parent);

    /// Whether a changed file is reloaded without a question if the scene has no changes of the user.
    void setReloadsByItself(bool reloads);

private:
    void update();
    void ask();
    [[nodiscard]] QString lossText() const;

    SceneDocument& m_document;
    FileFlow& m_flow;
    DiskWatch& m_disk;
    MessageBar& m_messages;
    bool m_reloadsByItself = false;
    bool m_isAsking = false;
};
