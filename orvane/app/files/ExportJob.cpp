#include "orvane/app/files/ExportJob.h"

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/ScenePaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace {

// Enough to keep the helper busy until the next turn of the event loop.
constexpr std::size_t enoughPending = std::size_t{4} << 20;
constexpr std::size_t bytesPerSlice = std::size_t{1} << 20;

QStringList helperArguments(const QString& fileName)
{
    const QFileInfo file(fileName);
    return {QStringLiteral("--write"), file.suffix(), QStringLiteral("--name"), file.completeBaseName()};
}

bool hasContent(const QString& fileName, const std::string& bytes)
{
    const QFileInfo info(fileName);
    QFile file(fileName);
    if (!info.isFile() || info.size() != static_cast<qint64>(bytes.size()) || !file.open(QIODevice::ReadOnly))
        return false;
    constexpr std::size_t portion = std::size_t{1} << 20;
    QByteArray present(static_cast<qsizetype>(std::min(portion, bytes.size())), Qt::Uninitialized);
    for (std::size_t at = 0; at < bytes.size(); at += portion) {
        const std::size_t count = std::min(portion, bytes.size() - at);
        if (file.read(present.data(), static_cast<qint64>(count)) != static_cast<qint64>(count)
            || std::memcmp(present.constData(), bytes.data() + at, count) != 0)
            return false;
    }
    return true;
}

} // namespace

ExportJob::ExportJob(
    const NxRef<NxGroup>& scene, const QString& fileName, const HelperOptions& options, const QString& pathFolder)
    : FileJob(fileName)
    , m_scene(scene)
    , m_pathFolder(pathFolder)
    , m_helper(options, helperArguments(fileName))
{
    connect(&m_helper, &HelperProcess::ended, this, &ExportJob::takeFiles);
    connect(&m_helper, &HelperProcess::failed, this, [this](const QString& reason, bool byHelper) {
        fail(byHelper ? reason : QStringLiteral("%1: %2").arg(this->fileName(), reason));
    });
}

ExportJob::~ExportJob() = default;

void ExportJob::start()
{
    const QFileInfo file(fileName());
    if (file.suffix().isEmpty() || file.completeBaseName().isEmpty()) {
        const QString message
            = tr("%1: the name of a model needs a format behind its dot and something before it, as in "
                 "model.glb")
                  .arg(fileName());
        QMetaObject::invokeMethod(
            this, [this, message] { fail(message); }, Qt::QueuedConnection);
        return;
    }
    m_writer = std::make_unique<NxSceneWriter>(m_scene.get());
    m_writer->setPathMap(orvane::pathMap(m_pathFolder, orvane::folderOf(fileName())));
    m_helper.start();
    startSlices();
}

void ExportJob::runSlice()
{
    if (m_writer)
        writeScene();
    else if (m_unchecked > 1)
        checkFile();
    else
        writeFiles();
}

void ExportJob::writeScene()
{
    if (m_helper.pendingInput() >= enoughPending) {
        // Wait until the helper has read some of it.
        pauseSlices();
        connect(&m_helper, &HelperProcess::inputTaken, this, &ExportJob::startSlices, Qt::UniqueConnection);
        return;
    }
    std::string text;
    const bool more = m_writer->step(text, SliceClock::length);
    if (!m_writer->failure().empty())
        return fail(QStringLiteral("%1: %2").arg(fileName(), orvane::toQString(m_writer->failure())));
    m_helper.write(text);
    Q_EMIT progressed(m_writer->progress() / 2);
    if (more)
        return;
    m_helper.closeInput();
    m_writer.reset();
    pauseSlices();
    disconnect(&m_helper, &HelperProcess::inputTaken, this, nullptr);
    Q_EMIT progressed(-1);
}

void ExportJob::takeFiles()
{
    const std::string base = orvane::toStdFileName(QFileInfo(fileName()).completeBaseName());
    const std::string name = orvane::toStdFileName(QFileInfo(fileName()).fileName());
    auto files = orvane::unpackFramedFiles(m_helper.takeOutput());
    // The helper has read a scene of unknown origin, so only files of the model's own name are written. A helper that
    // ended before it got the whole scene can't have written the model.
    const bool usable = files && m_writer == nullptr && files->front().name == name
        && std::all_of(files->begin(), files->end(),
            [&](const auto& file) { return file.name.starts_with(base + '.') || file.name.starts_with(base + '_'); });
    if (!usable) {
        fail(tr("%1: the import helper sent something that isn't a model").arg(fileName()));
        return;
    }
    m_files = std::move(*files);
    m_unchecked = m_files.size();
    m_replacesModel = QFileInfo::exists(fileName());
    startSlices();
}

void ExportJob::checkFile()
{
    const auto file = m_files.begin() + static_cast<std::ptrdiff_t>(--m_unchecked);
    const QString path
        = QFileInfo(orvane::absoluteFileName(fileName())).dir().filePath(orvane::fromStdFileName(file->name));
    const QFileInfo present(path);
    if (!present.exists() && !present.isSymLink())
        return;
    if (hasContent(path, file->bytes))
        m_files.erase(file); // an earlier export of the same image, perhaps
    else if (!m_replacesModel || QFileInfo(path).completeBaseName() != QFileInfo(fileName()).completeBaseName())
        fail(tr(
            "%1: This file exists already and would be overwritten by one that belongs to %2. Choose another name for "
            "the model, or move the file away.")
                 .arg(path, QFileInfo(fileName()).fileName()));
}

void ExportJob::writeFiles()
{
    const QDir folder = QFileInfo(orvane::absoluteFileName(fileName())).dir();
    std::optional<std::string> failure;
    if (m_replacers.empty() || m_written == m_files[m_replacers.size() - 1].bytes.size()) {
        if (m_replacers.size() == m_files.size()) {
            commitFiles();
            return;
        }
        const QString name = orvane::fromStdFileName(m_files[m_replacers.size()].name);
        m_replacers.push_back(std::make_unique<meridane::FileReplacer>());
        m_written = 0;
        failure = m_replacers.back()->open(orvane::toStdFileName(folder.filePath(name)));
    }
    if (!failure) {
        const std::string& bytes = m_files[m_replacers.size() - 1].bytes;
        const std::size_t count = std::min(bytesPerSlice, bytes.size() - m_written);
        failure = m_replacers.back()->write(bytes.data() + m_written, count);
        m_written += count;
    }
    if (failure)
        fail(orvane::toQString(*failure));
}

void ExportJob::commitFiles()
{
    // The files that the main file refers to are replaced first, so that it never refers to an older one.
    // NOLINTNEXTLINE(modernize-loop-convert): clang 14 knows no reversed view of this library
    for (auto replacer = m_replacers.rbegin(); replacer != m_replacers.rend(); ++replacer) {
        if (const std::optional<std::string> failure = (*replacer)->commit()) {
            fail(orvane::toQString(*failure));
            return;
        }
    }
    finish();
}

void ExportJob::release()
{
    m_helper.kill();
    m_writer.reset();
    m_replacers.clear();
}
