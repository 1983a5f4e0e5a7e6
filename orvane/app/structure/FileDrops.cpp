#include "orvane/app/structure/FileDrops.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/structure/NodeEditor.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/detail/EditParts.h"
#include "orvane/app/structure/detail/EditTexts.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/transfer/FileFormats.h"

#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <array>

namespace {

bool isImageSuffix(const QString& suffix)
{
    static constexpr std::array suffixes{
        "png", "jpg", "jpeg", "bmp", "gif", "tga", "tif", "tiff", "webp", "psd", "hdr", "ppm", "pgm"};
    return std::ranges::any_of(suffixes, [&suffix](const char* known) { return suffix == QLatin1String(known); });
}

bool isModelSuffix(const QString& suffix)
{
    return std::ranges::any_of(orvane::modelFormats,
        [&suffix](const orvane::FileFormat& format) { return suffix == orvane::toQString(format.extension); });
}

bool takesTexture(const NxNode& node)
{
    return node.isOfType(NxMesh::getClassTypeId()) || node.isOfType(NxMaterial::getClassTypeId());
}

/// A file as a scene in that folder refers to it.
QString pathFrom(const QString& folder, const QString& fileName)
{
    if (folder.isEmpty())
        return fileName;
    // As it is written when a scene beside the file goes to that folder.
    const QFileInfo file(fileName);
    return orvane::rebasedPath(file.fileName(), file.path(), folder);
}

} // namespace

FileDrops::FileDrops(Session& session, FileFlow& files, NodeEditor& editor)
    : QObject(&editor)
    , m_session(session)
    , m_files(files)
    , m_editor(editor)
{
}

FileDrops::~FileDrops() = default;

QString FileDrops::refusal(const QMimeData& data, const Place& place) const
{
    const Files files = sort(data);
    if (!files.models.isEmpty())
        return {};
    if (files.images.isEmpty())
        return files.refused.isEmpty() ? tr("Only files can be dropped here.") : files.refused;
    if (!m_session.document().isOpen())
        return tr("Open a scene before you drop an image.");
    if (!place.node || !takesTexture(place.node->first()))
        return tr("Drop an image onto a mesh or a material, whose texture it is to be.");
    if (files.images.size() > 1)
        return tr("Drop a single image: a mesh has one texture at a time.");
    return {};
}

QString FileDrops::promise(const QMimeData& data, const Place& place) const
{
    const Files files = sort(data);
    if (files.models.isEmpty())
        return tr("Makes the image a texture of %1").arg(orvane::nodeName(place.node->first()));
    const QString names = files.models.size() == 1 ? orvane::shortLine(QFileInfo(files.models.front()).fileName())
                                                   : tr("%1 files").arg(files.models.size());
    if (opens(files, place))
        return tr("Opens %1").arg(names);
    const NodeSpot spot = spotOf(place);
    return spot.path.size() == 1 ? tr("Adds %1 to the scene").arg(names)
                                 : tr("Adds %1 to %2").arg(names, orvane::nodeName(spot.group()));
}

void FileDrops::take(const QMimeData& data, const Place& place)
{
    const QString reason = refusal(data, place);
    if (!reason.isEmpty()) {
        Q_EMIT m_editor.said(reason);
        return;
    }
    const Files files = sort(data);
    if (files.refusedCount > 0)
        Q_EMIT m_editor.said(files.refused);
    if (files.models.isEmpty()) {
        addTexture(files.images.front(), *place.node);
        return;
    }
    if (opens(files, place)) {
        m_files.open(files.models.front());
        return;
    }
    if (!m_session.document().isOpen())
        m_session.document().newScene();
    if (m_batch != nullptr) {
        Q_EMIT m_editor.said(tr("Other files are still being added; drop these when that is done."));
        return;
    }
    const NodeSpot spot = spotOf(place);
    m_batch = std::make_unique<Batch>();
    m_batch->waiting = files.models;
    m_batch->spot = {spot.places, {spot.index}};
    m_batch->scene = m_session.document().sceneNumber();
    readNext();
}

FileDrops::Files FileDrops::sort(const QMimeData& data) const
{
    Files files;
    const auto refuse = [&files](const QString& reason) {
        files.refused = reason;
        ++files.refusedCount;
    };
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        const QString fileName = orvane::fromFileUrl(url.toEncoded());
        const QFileInfo file(fileName);
        const QString shown = orvane::shortLine(file.fileName());
        const QString suffix = file.suffix().toLower();
        if (fileName.isEmpty())
            refuse(tr("%1 is an address on the net. Download the file and drop that.")
                       .arg(orvane::shortLine(url.toDisplayString())));
        else if (!file.exists())
            refuse(tr("%1 doesn't exist.").arg(shown));
        else if (file.isDir())
            refuse(tr("%1 is a folder. Drop the files in it.").arg(shown));
        else if (isImageSuffix(suffix))
            files.images.append(fileName);
        else if (isModelSuffix(suffix) || SceneDocument::isSceneFileName(fileName))
            files.models.append(fileName);
        else
            refuse(tr("%1 is no file that can be added: neither a scene, nor a model or an image that the tool knows "
                      "by its name.")
                       .arg(shown));
    }
    files.isScene = files.models.size() == 1 && SceneDocument::isSceneFileName(files.models.front());
    return files;
}

bool FileDrops::opens(const Files& files, const Place& place) const
{
    if (files.models.size() != 1)
        return false;
    return !m_session.document().isOpen() || (files.isScene && !place.node && !place.spot);
}

NodeSpot FileDrops::spotOf(const Place& place) const
{
    if (place.spot)
        return *place.spot;
    if (!place.node)
        return {{m_editor.scene()}, {}, m_editor.scene()->getNumChildren()};
    const meridane::NodeRows& rows = *place.node;
    auto* const group = dynamic_cast<NxGroup*>(&rows.first());
    if (group == nullptr)
        return {rows.path, rows.places, rows.rows.front() + 1};
    NodeSpot spot{rows.path, rows.places, group->getNumChildren()};
    spot.path.push_back(group);
    spot.places.push_back(rows.rows.front());
    return spot;
}

// Textures apply to what follows them in their group.
void FileDrops::addTexture(const QString& fileName, const meridane::NodeRows& node)
{
    const NxNode& target = node.first();
    const NxRef<NxTexture> texture(new NxTexture);
    texture->filePath.setValue(VbString(pathFrom(m_session.document().pathFolder(), fileName).toStdString()));
    texture->setName(orvane::toVbString(QFileInfo(fileName).completeBaseName()));
    const bool isMesh = target.isOfType(NxMesh::getClassTypeId());
    const NodeSpot spot{node.path, node.places, node.rows.front() + (isMesh ? 0 : 1)};
    const NxRef<NxNode> added(texture);
    NodeEdit edit = NodeEdits::insert(std::span(&added, 1), spot, NodeEdits::Names::Number);
    edit.label = tr("Add texture to %1").arg(orvane::nodeName(target));
    if (m_editor.apply(std::move(edit)))
        Q_EMIT this->added();
}

void FileDrops::readNext()
{
    if (m_batch->waiting.isEmpty()) {
        addAll();
        return;
    }
    const QString fileName = m_batch->waiting.takeFirst();
    m_files.readToAdd(fileName,
        {[this, fileName](const ReadScene& read) {
             m_batch->read.emplace_back(fileName, read);
             readNext();
         },
            [this](const QString& reason, FileWork::Loss loss) {
                m_batch->failures.append(reason);
                if (loss == FileWork::Loss::Stopped)
                    m_batch.reset(); // with all others that were dropped with it
                else
                    readNext();
            }});
}

void FileDrops::addAll()
{
    const std::unique_ptr<Batch> batch = std::move(m_batch);
    // The message of a single file is there already; of several, each takes the place of the one before.
    if (!batch->failures.isEmpty() && batch->failures.size() + std::ssize(batch->read) > 1)
        Q_EMIT failed(batch->failures.join(u'\n'));
    if (batch->read.empty() || m_session.document().sceneNumber() != batch->scene)
        return;
    std::vector<NxRef<NxNode>> nodes;
    for (const auto& [fileName, read] : batch->read) {
        orvane::rebasePaths(*read.scene, orvane::folderOf(fileName), m_session.document().pathFolder());
        read.scene->setName(orvane::toVbString(QFileInfo(fileName).completeBaseName()));
        m_session.services().document().journal()->adopt(*read.journal);
        nodes.emplace_back(read.scene);
    }
    // The group may have gone while the files were read.
    const std::optional<meridane::NodeRows> group = orvane::groupAt(*m_editor.scene(), batch->spot.places);
    const NodeSpot spot = group
        ? NodeSpot{group->path, group->places, std::min(batch->spot.rows.front(), group->group().getNumChildren())}
        : spotOf({});
    NodeEdit edit = NodeEdits::insert(nodes, spot, NodeEdits::Names::Number);
    edit.label
        = nodes.size() == 1 ? orvane::EditTexts::add(orvane::pointersOf(nodes)) : tr("Add %1 files").arg(nodes.size());
    if (m_editor.apply(std::move(edit)))
        Q_EMIT added();
}
