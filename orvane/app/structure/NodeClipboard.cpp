#include "orvane/app/structure/NodeClipboard.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/detail/EditParts.h"
#include "orvane/app/structure/detail/EditTexts.h"
#include "orvane/extender/OrvDocument.h"

#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/journal/Journal.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUuid>

#include <algorithm>
#include <utility>

NodeClipboard::NodeClipboard(Session& session, NodeEditor& editor)
    : QObject(&editor)
    , m_session(session)
    , m_editor(editor)
    , m_token(QUuid::createUuid().toByteArray())
{
}

NodeClipboard::~NodeClipboard() = default;

orvane::Result<std::unique_ptr<QMimeData>> NodeClipboard::mimeData(const meridane::NodeSet& nodes) const
{
    const DraggedNodes::Content content = draggedNodes(nodes);
    return orvane::nodeMimeData(content.nodes, content.origin);
}

DraggedNodes::Content NodeClipboard::draggedNodes(const meridane::NodeSet& nodes) const
{
    const meridane::NodeSet top = meridane::topmost(nodes);
    const orvane::EditNodes pointers = orvane::nodesOf(top);
    orvane::NodeOrigin origin{m_session.document().pathFolder(), sceneToken(), {}};
    const meridane::Journal* const journal = m_session.services().document().journal();
    for (const NxNode* const node : pointers) {
        const auto number = journal != nullptr ? journal->number(*node) : std::nullopt;
        if (number)
            origin.numbers.push_back(*number);
    }
    QStringList paths;
    constexpr qsizetype mostPaths = 100; // each takes a while in a wide scene
    for (const meridane::SetMember& member : meridane::inTreeOrder(top)) {
        if (paths.size() == mostPaths)
            break;
        std::vector<NxNode*> path(member.rows->path.begin() + 1, member.rows->path.end());
        path.push_back(member.node());
        paths.append(orvane::toQString(NxScenePath::toText(m_session.document().scene(), path)));
    }
    return {std::vector<NxRef<NxNode>>(pointers.begin(), pointers.end()), std::move(origin), paths,
        pointers.empty() ? QString() : orvane::nodeName(*pointers.front())};
}

void NodeClipboard::copy(const meridane::NodeSet& nodes)
{
    auto data = mimeData(nodes);
    if (data)
        QGuiApplication::clipboard()->setMimeData(std::move(data).value().release());
    else
        Q_EMIT m_editor.said(data.error());
}

void NodeClipboard::cut(const meridane::NodeSet& nodes)
{
    auto data = mimeData(nodes);
    MadeEdit edit = data ? NodeEdits(*m_editor.scene()).remove(nodes) : MadeEdit(orvane::Failure{data.error()});
    if (edit) {
        NodeEdit made = std::move(edit).value();
        made.label = orvane::EditTexts::cut(meridane::topmost(nodes));
        edit = std::move(made);
    }
    if (m_editor.apply(std::move(edit)))
        QGuiApplication::clipboard()->setMimeData(std::move(data).value().release());
}

void NodeClipboard::paste()
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr)
        return;
    // File managers copy files as text too.
    if (orvane::hasFiles(*data))
        Q_EMIT filesPasted(*data);
    else
        read(*data, std::nullopt);
}

void NodeClipboard::pasteShared()
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    meridane::Journal* const journal = m_session.services().document().journal();
    if (data == nullptr || journal == nullptr)
        return;
    const auto text = orvane::nodeText(*data);
    std::vector<NxRef<NxNode>> nodes;
    if (text && text.value().origin.scene == sceneToken()) {
        for (const quint64 number : text.value().origin.numbers) {
            if (auto* const node = dynamic_cast<NxNode*>(journal->node(number)))
                nodes.emplace_back(node);
        }
    }
    if (!text || nodes.empty()) {
        Q_EMIT m_editor.said(text
                ? tr("Only nodes that were copied from this scene can be shared in it. Paste them as copies.")
                : text.error());
        return;
    }
    m_editor.apply(NodeEdits::shareNodes(nodes, spotForPasting(text.value().origin)));
}

void NodeClipboard::insert(const QMimeData& data, const NodeSpot& spot)
{
    read(data, orvane::TreeRows{spot.places, {spot.index}});
}

bool NodeClipboard::isOfThisScene(const QMimeData& data) const
{
    return orvane::sceneOf(data) == sceneToken();
}

QByteArray NodeClipboard::sceneToken() const
{
    return m_token + QByteArray::number(m_session.document().sceneNumber());
}

bool NodeClipboard::isOwn(const orvane::NodeOrigin& origin, const NxNode& node) const
{
    const meridane::Journal* const journal = m_session.services().document().journal();
    const auto number = journal != nullptr ? journal->number(node) : std::nullopt;
    return number && origin.scene == sceneToken()
        && std::ranges::find(origin.numbers, static_cast<quint64>(*number)) != origin.numbers.end();
}

// What was copied comes beside itself, not into itself.
NodeSpot NodeClipboard::spotForPasting(const orvane::NodeOrigin& origin) const
{
    const NodeSpot spot = m_editor.spotForAdding();
    return isOwn(origin, spot.group()) ? m_editor.spotBehindSelected() : spot;
}

// The scene may have changed since, so the place is looked for again.
NodeSpot NodeClipboard::spotOf(const Reading& reading) const
{
    if (!reading.spot)
        return spotForPasting(reading.origin);
    const std::optional<meridane::NodeRows> group = orvane::groupAt(*m_editor.scene(), reading.spot->places);
    if (!group)
        return m_editor.spotForAdding();
    return {group->path, group->places, std::min(reading.spot->rows.front(), group->group().getNumChildren())};
}

void NodeClipboard::read(const QMimeData& data, const std::optional<orvane::TreeRows>& spot)
{
    if (m_editor.scene() == nullptr)
        return;
    auto text = orvane::nodeText(data);
    if (!text) {
        Q_EMIT m_editor.said(text.error());
        return;
    }
    orvane::NodeText content = std::move(text).value();
    m_reading = Reading{std::make_unique<NxSceneReader>(std::move(content.text), tr("Clipboard").toStdString()),
        std::move(content.origin), content.addedLines, m_session.document().sceneNumber(), spot};
    readOn(SliceClock());
    if (!m_reading)
        return;
    Q_EMIT m_editor.said(tr("Reading what is pasted…"));
    m_timer.start(0, this);
}

void NodeClipboard::timerEvent(QTimerEvent*)
{
    readOn(SliceClock());
}

void NodeClipboard::readOn(const meridane::WorkBudget& budget)
{
    if (!m_reading || m_reading->reader->step(budget) == NxSceneReader::State::Working)
        return;
    m_timer.stop();
    take(*std::exchange(m_reading, std::nullopt));
}

void NodeClipboard::take(Reading reading)
{
    if (reading.reader->state() == NxSceneReader::State::Failed) {
        NxReadFailure failure = reading.reader->failure();
        failure.line = std::max(0, failure.line - reading.addedLines);
        Q_EMIT m_editor.said(tr("Nothing was pasted. %1").arg(orvane::toQString(failure.text())));
        return;
    }
    if (m_editor.scene() == nullptr || m_session.document().sceneNumber() != reading.scene) {
        Q_EMIT m_editor.said(tr("Nothing was pasted, since another scene was opened meanwhile."));
        return;
    }
    const NxRef<NxGroup> scene = reading.reader->takeScene();
    if (scene->getNumChildren() == 0) {
        Q_EMIT m_editor.said(tr("The clipboard holds no nodes."));
        return;
    }
    orvane::rebasePaths(*scene, reading.origin.folder, m_session.document().pathFolder());
    const std::vector<NxRef<NxNode>> nodes(scene->getChildren().begin(), scene->getChildren().end());
    scene->removeAllChildren();
    NodeEdit edit = NodeEdits::insert(nodes, spotOf(reading), NodeEdits::Names::Number);
    edit.label = orvane::EditTexts::paste(orvane::pointersOf(nodes));
    m_editor.apply(std::move(edit));
}
