#include "orvane/app/FileFlow.h"

#include "orvane/app/FileJobs.h"
#include "orvane/app/InputBlock.h"
#include "orvane/app/JobBar.h"
#include "orvane/app/MessageBar.h"
#include "orvane/app/NodeCommands.h"
#include "orvane/app/PendingEdits.h"
#include "orvane/app/RecentFiles.h"
#include "orvane/app/SaveQuestion.h"
#include "orvane/app/Session.h"
#include "orvane/app/TextConversion.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>

namespace {

const QString topic = QStringLiteral("file");

} // namespace

FileFlow::FileFlow(Session& session, RecentFiles& recent, MessageBar& messages, JobBar& jobBar, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_recent(recent)
    , m_messages(messages)
    , m_jobBar(jobBar)
    , m_window(window)
{
}

FileFlow::~FileFlow() = default;

void FileFlow::newScene()
{
    leaveScene([this] { m_session.document().newScene(); });
}

void FileFlow::closeScene()
{
    leaveScene([this] { m_session.document().close(); });
}

void FileFlow::open(const QString& fileName)
{
    leaveScene([this, fileName] {
        load(fileName, [this, fileName](const NxRef<NxGroup>& scene) {
            // The old scene could be edited while the new one was read.
            leaveScene([this, scene, fileName] { m_session.document().open(scene, fileName); });
        });
    });
}

void FileFlow::import(const QString& fileName)
{
    if (!m_session.document().isOpen())
        open(fileName);
    else
        load(fileName, [this, fileName](const NxRef<NxGroup>& content) { addToScene(content, fileName); });
}

void FileFlow::save()
{
    saveThen({});
}

void FileFlow::saveAs()
{
    if (m_session.document().isOpen())
        chooseSaveFile({});
}

void FileFlow::saveTo(const QString& fileName)
{
    if (SceneDocument::isSceneFileName(fileName)) {
        write(fileName, tr("Saving"), [this, fileName] {
            m_session.document().setSaved(fileName);
            m_recent.add(fileName);
        });
    } else {
        exportTo(fileName);
    }
}

void FileFlow::exportTo(const QString& fileName)
{
    write(fileName, tr("Exporting"), [this, fileName] {
        m_messages.showMessage(MessageBar::Severity::Information, tr("Exported to %1.").arg(fileName), topic);
    });
}

void FileFlow::leaveScene(const Action& proceed)
{
    if (m_block != nullptr) {
        m_afterJob = [this, proceed] { leaveScene(proceed); };
        return;
    }
    orvane::commitPendingEdit();
    if (!m_session.document().isModified()) {
        proceed();
        return;
    }
    auto* question = new SaveQuestion(m_session.document().displayName(), m_window);
    connect(question, &SaveQuestion::saveChosen, this, [this, proceed] { saveThen(proceed); });
    connect(question, &SaveQuestion::discardChosen, this, proceed);
    question->open();
}

void FileFlow::cancelLoading()
{
    if (m_block == nullptr)
        m_jobBar.cancel();
}

void FileFlow::load(const QString& fileName, std::function<void(NxRef<NxGroup>)> take)
{
    std::unique_ptr<SceneJob> job = orvane::makeLoadJob(fileName);
    SceneJob* running = job.get();
    connect(running, &FileJob::failed, &m_recent, [this, fileName] {
        if (!QFileInfo::exists(fileName))
            m_recent.remove(fileName);
    });
    run(std::move(job), tr("Opening %1").arg(QFileInfo(fileName).fileName()),
        [this, running, fileName, take = std::move(take)] {
            m_recent.add(fileName);
            take(running->takeScene());
        });
}

void FileFlow::write(const QString& fileName, const QString& text, const Action& done)
{
    if (!mayWrite())
        return;
    run(orvane::makeSaveJob(NxRef<NxGroup>(m_session.document().scene()), fileName),
        tr("%1 %2").arg(text, QFileInfo(fileName).fileName()), done);
    m_block = std::make_unique<InputBlock>(&m_jobBar);
    connect(m_block.get(), &InputBlock::escapePressed, &m_jobBar, &JobBar::cancel);
}

bool FileFlow::mayWrite()
{
    if (!m_session.document().isOpen() || m_block != nullptr)
        return false;
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        // A drag in progress goes on changing the scene.
        m_messages.showMessage(
            MessageBar::Severity::Warning, tr("Nothing was saved: a mouse button is held down."), topic);
        return false;
    }
    orvane::commitPendingEdit();
    return true;
}

void FileFlow::run(std::unique_ptr<FileJob> job, const QString& text, const Action& done)
{
    m_job = std::move(job); // ends a job that still reads
    FileJob* running = m_job.get();
    connect(running, &FileJob::finished, this, [this, done] {
        m_messages.clearTopic(topic);
        m_block.reset();
        done();
        end({});
    });
    connect(running, &FileJob::failed, this, [this](const QString& message) {
        m_messages.showMessage(MessageBar::Severity::Error, message, topic);
        m_afterJob = {};
        end(message);
    });
    connect(running, &FileJob::cancelled, this, [this] {
        m_afterJob = {};
        end({});
    });
    m_jobBar.watch(running, text);
    running->start();
}

void FileFlow::end(const QString& error)
{
    m_block.reset();
    // The job is inside its own signal.
    if (m_job != nullptr)
        m_job.release()->deleteLater();
    if (const Action next = std::exchange(m_afterJob, {}))
        next();
    Q_EMIT ended(error);
}

void FileFlow::saveThen(const Action& proceed)
{
    if (!m_session.document().isOpen())
        return;
    const QString fileName = m_session.document().saveFileName();
    if (fileName.isEmpty()) {
        chooseSaveFile(proceed);
        return;
    }
    saveTo(fileName);
    m_afterJob = proceed;
}

void FileFlow::chooseSaveFile(const Action& proceed)
{
    const SceneDocument& document = m_session.document();
    auto* dialog = new QFileDialog(m_window, tr("Save Scene"));
    dialog->setObjectName(QStringLiteral("saveDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(orvane::saveFilters());
    dialog->setDefaultSuffix(QStringLiteral("mrd"));
    const QFileInfo present(document.fileName());
    if (!document.fileName().isEmpty())
        dialog->setDirectory(present.absolutePath());
    dialog->selectFile(
        (document.fileName().isEmpty() ? tr("Untitled") : present.completeBaseName()) + QStringLiteral(".mrd"));
    connect(dialog, &QFileDialog::fileSelected, this, [this, proceed](const QString& fileName) {
        saveTo(SceneDocument::isSceneFileName(fileName) ? fileName : fileName + QStringLiteral(".mrd"));
        m_afterJob = proceed;
    });
    dialog->open();
}

void FileFlow::addToScene(const NxRef<NxGroup>& content, const QString& fileName)
{
    content->setName(orvane::toVbString(QFileInfo(fileName).completeBaseName()));
    m_session.services().pushCommand(new AddNodeCommand(m_session.document().scene(), content, m_session.disposal()));
}
