#include "orvane/app/files/FileFlow.h"

#include "orvane/app/base/PendingEdits.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/FileDialogs.h"
#include "orvane/app/files/FileJobs.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/files/SaveQuestion.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/scene/SpaceStep.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/journal/Journal.h"

#include <QFileDialog>
#include <QFileInfo>

#include <utility>

FileFlow::FileFlow(Session& session, RecentFiles& recent, MessageBar& messages, JobBar& jobBar, QWidget* window)
    : FileFlow(session, recent, messages, jobBar, window, {orvane::makeLoadJob, orvane::makeSaveJob})
{
}

FileFlow::FileFlow(
    Session& session, RecentFiles& recent, MessageBar& messages, JobBar& jobBar, QWidget* window, JobMakers jobMakers)
    : QObject(window)
    , m_session(session)
    , m_recent(recent)
    , m_window(window)
    , m_jobMakers(std::move(jobMakers))
    , m_work(messages, jobBar, this)
    , m_disk(session.document())
    , m_reload(session, m_work, m_jobMakers.load)
    , m_saving(session, recent, m_work, m_disk, m_jobMakers.save, window)
{
    connect(&m_work, &FileWork::writingEnded, this, &FileFlow::ended);
    connect(&m_work, &FileWork::noted, this, &FileFlow::noted);
    connect(&session.document(), &SceneDocument::sceneChanged, this,
        [this] { m_work.dropOtherScenes(m_session.document().sceneNumber()); });
    connect(&m_reload, &SceneReload::aboutToChange, this, &FileFlow::aboutToReload);
    connect(&m_reload, &SceneReload::done, this, &FileFlow::reloaded);
    connect(&m_reload, &SceneReload::refused, this, &FileFlow::reloadRefused);
    connect(&m_reload, &SceneReload::ended, this, &FileFlow::ended);
    connect(&m_saving, &SceneSaving::compareRequested, this, &FileFlow::compareWith);
}

FileFlow::~FileFlow() = default;

void FileFlow::newScene()
{
    requestForAnyScene(Kind::New, [this] {
        leave({[this] {
            m_work.stopReading(tr("A new scene was made instead."));
            m_session.document().newScene();
        }});
    });
}

void FileFlow::closeScene()
{
    request(Kind::Close, [this] {
        leave({[this] {
            m_work.stopReading(tr("The scene was closed."));
            m_session.document().close();
        }});
    });
}

void FileFlow::open(const QString& fileName, const Opened& opened)
{
    m_work.push({Kind::Open, fileName, FileRequest::anyScene, [this, fileName, opened] { startOpen(fileName, opened); },
        [this, opened](const QString& reason) { loseOpen(opened, reason, Loss::Stopped); }});
}

void FileFlow::openRecovered(const QString& displayName, const QString& fileName,
    const std::function<std::unique_ptr<SceneJob>()>& makeJob, const Opened& opened)
{
    const auto show = [this, fileName](const ReadScene& read) {
        m_session.document().openUnsaved(read.journal, fileName, read.content);
    };
    const Opening opening{displayName, makeJob, show, opened};
    m_work.push({Kind::Open, displayName, FileRequest::anyScene, [this, opening] { start(opening); },
        [this, opened](const QString& reason) { loseOpen(opened, reason, Loss::Stopped); }});
}

void FileFlow::import(const QString& fileName)
{
    request(
        Kind::Add, [this, fileName] { startAdd(fileName); }, fileName);
}

void FileFlow::readToAdd(const QString& fileName, const FileWork::Reader& reader)
{
    m_work.push({Kind::Add, fileName, m_session.document().sceneNumber(),
        [this, fileName, reader] { startReadingToAdd(fileName, reader); },
        [reader](const QString& reason) { reader.lost(reason, Loss::Stopped); }});
}

void FileFlow::compareWith(const QString& fileName)
{
    request(
        Kind::Compare, [this, fileName] { startCompare(fileName); }, fileName);
}

void FileFlow::reload(SceneReload::Trigger trigger)
{
    request(
        Kind::Reload, [this, trigger] { startReload(trigger); }, m_session.document().fileName());
}

void FileFlow::save()
{
    request(Kind::Save, [this] { m_saving.save({}); });
}

void FileFlow::saveAs()
{
    request(Kind::SaveAs, [this] { m_saving.saveAs({}); });
}

void FileFlow::saveTo(const QString& fileName)
{
    if (!SceneDocument::isSceneFileName(fileName)) {
        exportTo(fileName);
        return;
    }
    request(
        Kind::Save, [this, fileName] { m_saving.saveTo(fileName, {}); }, fileName);
}

void FileFlow::exportTo(const QString& fileName)
{
    request(
        Kind::Export, [this, fileName] { m_saving.exportTo(fileName); }, fileName);
}

// A file that is chosen in a dialog isn't queued again: the request had its turn when the dialog was opened.

void FileFlow::chooseFileToOpen()
{
    requestForAnyScene(Kind::Open, [this] {
        QFileDialog* dialog = orvane::makeOpenDialog(m_window, m_session.document());
        connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& name) { startOpen(name, {}); });
        m_work.open(dialog);
    });
}

void FileFlow::chooseFileToImport()
{
    request(Kind::Add, [this] {
        QFileDialog* dialog = orvane::makeImportDialog(m_window, m_session.document());
        connect(dialog, &QFileDialog::fileSelected, this, &FileFlow::startAdd);
        m_work.open(dialog);
    });
}

void FileFlow::chooseFileToExport()
{
    request(Kind::Export, [this] { m_saving.chooseExport(); });
}

void FileFlow::chooseFileToCompare()
{
    request(Kind::Compare, [this] {
        if (!m_session.document().isOpen())
            return;
        QFileDialog* dialog = orvane::makeCompareDialog(m_window, m_session.document());
        connect(dialog, &QFileDialog::fileSelected, this, &FileFlow::startCompare);
        m_work.open(dialog);
    });
}

void FileFlow::leaveForQuit(const Action& proceed)
{
    requestForAnyScene(Kind::Quit, [this, proceed] { leave({proceed}); });
}

void FileFlow::abandon()
{
    m_work.abandon();
}

void FileFlow::request(Kind kind, const Action& run, const QString& fileName)
{
    m_work.push({kind, fileName, m_session.document().sceneNumber(), run});
}

void FileFlow::requestForAnyScene(Kind kind, const Action& run)
{
    m_work.push({kind, {}, FileRequest::anyScene, run});
}

void FileFlow::leave(const Next& next)
{
    orvane::commitPendingEdit();
    if (!m_session.document().isModified()) {
        next.proceed();
        return;
    }
    auto* question = new SaveQuestion(m_session.document().displayName(), m_window);
    connect(question, &SaveQuestion::saveChosen, this, [this, next] { m_saving.save(next); });
    connect(question, &SaveQuestion::discardChosen, this, next.proceed);
    connect(question, &SaveQuestion::cancelChosen, this, next.giveUp);
    m_work.open(question);
}

void FileFlow::startOpen(const QString& fileName, const Opened& opened)
{
    const auto makeJob = [this, fileName] { return m_jobMakers.load(fileName); };
    const auto show = [this, fileName](const ReadScene& read) {
        const SpaceStep conversion(read.isConverted ? read.scene.get() : nullptr);
        m_session.document().open(read.journal, fileName, read.content);
        conversion.push(m_session.services());
    };
    start({fileName, makeJob, show, [this, fileName, opened](const orvane::Result<>& result) {
               if (result)
                   m_recent.add(fileName);
               else
                   forgetIfMissing(fileName);
               if (opened)
                   opened(result);
           }});
}

void FileFlow::start(const Opening& opening)
{
    const FileWork::Reader reader{[this, opening](const ReadScene& read) { takeScene(read, opening); },
        [this, opening](const QString& reason, Loss loss) { loseOpen(opening.opened, reason, loss); }};
    leave({[this, opening, reader] { m_work.read(Kind::Open, opening.makeJob(), reader); },
        [this, opening] { cancelOpen(opening.opened, opening.fileName); }});
}

void FileFlow::startAdd(const QString& fileName)
{
    if (refusesBehindOpen(Kind::Add, fileName))
        return;
    if (!m_session.document().isOpen()) {
        startOpen(fileName, {});
        return;
    }
    startReadingToAdd(fileName,
        {[this, fileName](const ReadScene& read) { addToScene(read, fileName); }, [](const QString&, Loss) {}});
}

void FileFlow::startReadingToAdd(const QString& fileName, const FileWork::Reader& reader)
{
    if (!m_session.document().isOpen()) {
        reader.lost(tr("No scene is open."), Loss::Stopped);
        return;
    }
    m_work.read(Kind::Add, m_jobMakers.load(fileName),
        {[this, fileName, reader](const ReadScene& read) {
             m_recent.add(fileName);
             reader.take(read);
             Q_EMIT ended({});
         },
            [this, fileName, reader](const QString& reason, Loss loss) {
                forgetIfMissing(fileName);
                reader.lost(reason, loss);
                loseOpen({}, reason, loss);
            }});
}

void FileFlow::startCompare(const QString& fileName)
{
    if (!m_session.document().isOpen() || refusesBehindOpen(Kind::Compare, fileName))
        return;
    m_work.read(Kind::Compare, m_jobMakers.load(fileName),
        {[this, fileName](const ReadScene& read) {
             Q_EMIT readToCompare(read.scene, fileName);
             Q_EMIT ended({});
         },
            [this, fileName](const QString& reason, Loss loss) {
                forgetIfMissing(fileName);
                loseOpen({}, reason, loss);
            }});
}

void FileFlow::startReload(SceneReload::Trigger trigger)
{
    if (!refusesBehindOpen(Kind::Reload, m_session.document().fileName()))
        m_reload.start(trigger);
}

// What comes of it would be lost with the present scene, and the user hasn't seen the next one yet.
bool FileFlow::refusesBehindOpen(Kind kind, const QString& fileName)
{
    const QString opening = m_work.fileBeingOpened();
    if (opening.isEmpty())
        return false;
    m_work.reportGivenUp(
        {FileRequest::name(kind, fileName)}, tr("%1 is being opened.").arg(QFileInfo(opening).fileName()));
    return true;
}

void FileFlow::takeScene(const ReadScene& read, const Opening& opening)
{
    // The old scene could be edited while the new one was read.
    leave({[this, read, opening] {
               opening.show(read);
               endOpen(opening.opened, {});
           },
        [this, opening] { cancelOpen(opening.opened, opening.fileName); }});
}

void FileFlow::addToScene(const ReadScene& read, const QString& fileName)
{
    orvane::rebasePaths(*read.scene, orvane::folderOf(fileName), m_session.document().pathFolder());
    read.scene->setName(orvane::toVbString(QFileInfo(fileName).completeBaseName()));
    m_session.services().document().journal()->adopt(*read.journal);
    m_session.services().pushCommand(
        new AddNodeCommand(m_session.document().scene(), read.scene, m_session.disposal()));
    Q_EMIT added(read.scene.get());
}

void FileFlow::endOpen(const Opened& opened, const orvane::Result<>& result)
{
    if (opened)
        opened(result);
    Q_EMIT ended(result);
}

void FileFlow::loseOpen(const Opened& opened, const QString& reason, Loss loss)
{
    if (loss == Loss::Failed)
        return endOpen(opened, orvane::Failure{reason});
    if (opened)
        opened(orvane::Failure{reason});
    Q_EMIT ended({}); // to stop is no failure
}

void FileFlow::cancelOpen(const Opened& opened, const QString& fileName)
{
    loseOpen(opened, tr("Opening %1 was cancelled.").arg(fileName), Loss::Stopped);
}

void FileFlow::forgetIfMissing(const QString& fileName)
{
    if (!QFileInfo::exists(fileName))
        m_recent.remove(fileName);
}
