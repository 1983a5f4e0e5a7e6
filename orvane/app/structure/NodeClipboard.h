#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/structure/DraggedNodes.h"
#include "orvane/app/structure/NodeEditor.h"
#include "orvane/app/structure/NodeMimeData.h"
#include "orvane/app/structure/TreeNodes.h"

#include <QBasicTimer>
#include <QObject>

#include <memory>
#include <optional>

class NxSceneReader;
class QMimeData;
class Session;

/// Copies nodes to the clipboard, and pastes nodes from it: those of this window, of another one, or a text.
///
/// A long text is read in slices; the nodes come into the scene when all of it is read.
class NodeClipboard : public QObject {
    Q_OBJECT

public:
    /// Both live longer.
    NodeClipboard(Session& session, NodeEditor& editor);
    ~NodeClipboard() override;

    /// The nodes of a set for the clipboard, which aren't those below others of it. Fails if they can't be
    /// copied.
    [[nodiscard]] orvane::Result<std::unique_ptr<QMimeData>> mimeData(const meridane::NodeSet& nodes) const;
    /// The same for a drag, which writes them when another program asks for them.
    [[nodiscard]] DraggedNodes::Content draggedNodes(const meridane::NodeSet& nodes) const;
    void copy(const meridane::NodeSet& nodes);
    void cut(const meridane::NodeSet& nodes);
    /// Pastes copies into the group that is selected, or behind another node that is. Files are left to others.
    void paste();
    /// The same for the nodes themselves, if they are still in the scene.
    void pasteShared();
    /// Adds nodes of that data to a place.
    void insert(const QMimeData& data, const NodeSpot& spot);
    /// Whether these are nodes of the scene that is open.
    [[nodiscard]] bool isOfThisScene(const QMimeData& data) const;
    /// Whether a text is being read.
    [[nodiscard]] bool isReading() const noexcept { return m_reading.has_value(); }

Q_SIGNALS:
    /// The clipboard holds files, not nodes.
    void filesPasted(const QMimeData& data);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// What is being read.
    struct Reading {
        std::unique_ptr<NxSceneReader> reader;
        orvane::NodeOrigin origin;
        int addedLines = 0;
        int scene = 0; // that was open when it began
        std::optional<orvane::TreeRows> spot; // none for that of the selection at the end
    };

    [[nodiscard]] QByteArray sceneToken() const;
    [[nodiscard]] NodeSpot spotForPasting(const orvane::NodeOrigin& origin) const;
    [[nodiscard]] NodeSpot spotOf(const Reading& reading) const;
    [[nodiscard]] bool isOwn(const orvane::NodeOrigin& origin, const NxNode& node) const;
    void read(const QMimeData& data, const std::optional<orvane::TreeRows>& spot);
    void readOn(const meridane::WorkBudget& budget);
    void take(Reading reading);

    Session& m_session;
    NodeEditor& m_editor;
    QByteArray m_token; // of this window
    std::optional<Reading> m_reading;
    QBasicTimer m_timer;
};
