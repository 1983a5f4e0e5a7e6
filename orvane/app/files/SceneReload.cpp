#include "orvane/app/files/SceneReload.h"

#include "orvane/app/base/PendingEdits.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/files/UpdateJob.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/scene/UpdateSceneCommand.h"
#include "orvane/extender/OrvDocument.h"

#include "meridane/scene/journal/Journal.h"

#include <QGuiApplication>

#include <new>
#include <utility>

namespace {

// A scene that is edited all the time, such as by a plug-in, is compared at once instead of in slices in the end.
constexpr int mostAttempts = 3;

bool isDragging()
{
    return QGuiApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

SceneReload::SceneReload(Session& session, FileWork& work, Load load)
    : m_session(session)
    , m_work(work)
    , m_load(std::move(load))
{
    const auto note = [this] { m_isEdited = true; };
    connect(&session.services(), &OrvServices::documentEdited, this, note);
    connect(&session.services(), &OrvServices::stepFinished, this, note);
}

void SceneReload::start(Trigger trigger)
{
    const QString fileName = m_session.document().fileName();
    if (fileName.isEmpty())
        return;
    m_trigger = trigger;
    m_attempts = 0;
    m_work.read(FileRequest::Kind::Reload, m_load(fileName),
        {[this, fileName](const ReadScene& read) {
             orvane::rebasePaths(*read.scene, orvane::folderOf(fileName), m_session.document().pathFolder());
             prepare(read, fileName);
         },
            [this](const QString& reason, FileWork::Loss loss) { lose(reason, loss); }});
}

void SceneReload::prepare(const ReadScene& read, const QString& fileName)
{
    // Further writes to a place that has a record make none.
    m_isEdited = m_session.services().document().journal()->hasRecords();
    const auto update = std::make_shared<NxSceneUpdate>(NxRef<NxGroup>(m_session.document().scene()), read.scene);
    m_work.read(FileRequest::Kind::Reload, std::make_unique<UpdateJob>(update, fileName),
        {[this, read, fileName, update](const ReadScene&) { finish(read, fileName, update); },
            [this](const QString& reason, FileWork::Loss loss) { lose(reason, loss); }});
}

void SceneReload::finish(const ReadScene& read, const QString& fileName, const Update& update)
{
    orvane::commitPendingEdit();
    if (m_trigger == Trigger::Watch && m_session.document().isModified()) {
        Q_EMIT refused();
        Q_EMIT ended({});
        return;
    }
    const bool isLate = m_isEdited || update->isOutdated() || m_session.services().document().journal()->hasChanges();
    if (isDragging() || (isLate && m_attempts++ < mostAttempts)) {
        prepare(read, fileName);
        return;
    }
    try {
        NxSceneChanges changes = update->takeChanges();
        if (isLate) {
            NxSceneUpdate again(NxRef<NxGroup>(m_session.document().scene()), read.scene);
            again.run();
            changes = again.takeChanges();
        }
        apply(read, fileName, std::move(changes));
    } catch (const std::bad_alloc&) {
        fail(tr("%1: the reloaded scene doesn't fit in memory").arg(fileName));
    }
}

void SceneReload::apply(const ReadScene& read, const QString& fileName, NxSceneChanges changes)
{
    SceneDocument& document = m_session.document();
    OrvServices& services = m_session.services();
    const QString name = orvane::shortLine(document.displayName());
    const bool hadChanges = document.isModified();
    const bool isEqual = changes.isEmpty();
    if (!isEqual) {
        Q_EMIT aboutToChange();
        using Undo = UpdateSceneCommand::Undo;
        const auto isComplete = std::make_shared<bool>(true);
        services.pushStep(
            new UpdateSceneCommand(std::move(changes), services.isUndoExact() ? Undo::ByHistory : Undo::ByCommand,
                m_session.disposal(), isComplete),
            tr("Reload %1").arg(name));
        if (!*isComplete) {
            services.undo();
            fail(tr("%1: the reloaded scene doesn't fit in memory").arg(fileName));
            return;
        }
    }
    m_session.disposal().dispose(read.scene);
    document.setSaved(fileName, read.content);
    if (isEqual)
        Q_EMIT done(tr("The scene is the same as in %1.").arg(name));
    else if (hadChanges)
        Q_EMIT done(tr("Reloaded %1. Undo brings your changes back.").arg(name));
    else
        Q_EMIT done(tr("Reloaded %1.").arg(name));
    Q_EMIT ended({});
}

void SceneReload::fail(const QString& message)
{
    m_work.showReadingError(message);
    Q_EMIT refused();
    Q_EMIT ended(orvane::Failure{message});
}

void SceneReload::lose(const QString& reason, FileWork::Loss loss)
{
    const bool failed = loss == FileWork::Loss::Failed;
    if (failed)
        Q_EMIT refused();
    Q_EMIT ended(failed ? orvane::Result<>(orvane::Failure{reason}) : orvane::Result<>());
}
