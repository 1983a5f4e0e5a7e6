#include "orvane/app/BatchRun.h"

#include "orvane/app/FileJobs.h"
#include "orvane/app/SceneEdit.h"
#include "orvane/app/SearchFolders.h"
#include "orvane/app/Session.h"
#include "orvane/extender/OrvEditor.h"

#include "meridane/base/NxReadError.h"
#include "meridane/base/VbName.h"
#include "meridane/scene/NxScenePath.h"

#include <QEventLoop>
#include <QTextStream>

#include <cstdlib>
#include <memory>
#include <typeinfo>

#include <cxxabi.h>

namespace {

// The class as the source names it: not every extension has a meta-object of its own.
QString className(const OrvExtension& extension)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(typeid(extension).name(), nullptr, nullptr, &status), std::free);
    return status == 0 ? QString::fromUtf8(name.get()) : QString::fromUtf8(typeid(extension).name());
}

QString handledType(OrvExtension* extension)
{
    auto* const editor = qobject_cast<OrvEditor*>(extension);
    return editor == nullptr ? QStringLiteral("none")
                             : QString::fromLatin1(editor->getHandledType().getName().getString());
}

} // namespace

std::optional<QString> BatchRun::finish(FileJob& job)
{
    QEventLoop loop;
    std::optional<QString> failure;
    QObject::connect(&job, &FileJob::finished, &loop, &QEventLoop::quit);
    QObject::connect(&job, &FileJob::failed, &loop, [&](const QString& message) {
        failure = message;
        loop.quit();
    });
    job.start();
    loop.exec();
    return failure;
}

std::optional<QString> BatchRun::open(const QString& fileName)
{
    const std::unique_ptr<SceneJob> job = orvane::makeLoadJob(fileName);
    auto failure = finish(*job);
    m_scene = job->takeScene();
    return failure;
}

std::optional<QString> BatchRun::store(const QString& fileName) const
{
    return finish(*orvane::makeSaveJob(m_scene, fileName));
}

std::optional<QString> BatchRun::listExtensions(const CommandLine& commandLine)
{
    Session session(commandLine.noSettings ? AppSettings::Mode::None : AppSettings::Mode::File);
    const QStringList failures
        = session.loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders()) + commandLine.plugins);
    int order = 0;
    const QList<OrvExtension*> extensions = session.plugins().getExtensions();
    for (OrvExtension* const extension : extensions)
        m_output << ++order << '\t' << className(*extension) << '\t' << extension->getName().toUtf8() << '\t'
                 << handledType(extension) << '\n';
    session.shutDown();
    return failures.isEmpty() ? std::nullopt : std::optional(failures.join(QStringLiteral("; ")));
}

std::optional<QString> BatchRun::run(const CommandLine& commandLine)
{
    // A job that fails gives its message back; the same read error must not stand on standard error a second time.
    NxReadError::setHandlerCallback([](const NxError* /*error*/, void* /*data*/) {}, nullptr);
    if (commandLine.listExtensions) {
        if (auto failure = listExtensions(commandLine))
            return failure;
    }
    if (commandLine.file.isEmpty())
        return std::nullopt;
    if (auto failure = open(commandLine.file))
        return failure;
    for (const CommandLine::Assignment& assignment : commandLine.assignments) {
        if (auto failure = orvane::setField(m_scene.get(), assignment))
            return failure;
    }
    if (!commandLine.select.isEmpty()) {
        const auto target = NxScenePath::find(m_scene.get(), commandLine.select.toStdString());
        if (!target.error.empty())
            return QString::fromStdString(target.error);
    }
    for (const QString& query : commandLine.queries) {
        QString text;
        if (auto failure = orvane::getField(m_scene.get(), query, text))
            return failure;
        m_output << text << '\n';
    }
    if (commandLine.list)
        m_output << orvane::listScene(m_scene.get());
    return commandLine.exportFile.isEmpty() ? std::nullopt : store(commandLine.exportFile);
}
