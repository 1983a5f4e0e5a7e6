#include "orvane/app/problems/FileSearch.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/problems/FileLook.h"

#include <utility>

using State = NxFileFinding::State;

FileSearch::FileSearch()
{
    m_thread.setMaxThreadCount(1);
}

FileSearch::~FileSearch()
{
    m_thread.clear();
    m_thread.waitForDone();
}

void FileSearch::restart(const QString& sceneFolder, const QStringList& allowedFolders)
{
    ++m_round;
    m_known.clear();
    m_waiting.clear();
    m_folders.setSceneFolder(sceneFolder);
    m_folders.setAllowedFolders(allowedFolders);
}

NxFileFinding FileSearch::find(const std::string& name, bool isImage)
{
    const QString path = m_folders.pathOf(orvane::toQString(name));
    if (path.isEmpty())
        return {State::Unreadable, "is in no folder, since the scene isn't saved yet"};
    if (!m_folders.contain(path))
        return isImage ? NxFileFinding{State::Unreadable, "is in a folder that images aren't loaded from"}
                       : NxFileFinding();
    const auto [known, isNew] = m_known.try_emplace({name, isImage}, NxFileFinding{State::Unknown, {}});
    if (isNew)
        lookLater({name, path, isImage});
    return known->second;
}

void FileSearch::lookLater(Question question)
{
    m_waiting.push_back(std::move(question));
    if (!std::exchange(m_isLooking, true))
        QMetaObject::invokeMethod(this, &FileSearch::look, Qt::QueuedConnection);
}

void FileSearch::look()
{
    m_thread.start([this, round = m_round, files = std::exchange(m_waiting, {})] {
        std::vector<Answer> answers;
        answers.reserve(files.size());
        for (const auto& [name, path, isImage] : files)
            answers.push_back({{name, isImage}, orvane::lookForFile(path, isImage)});
        // The destructor waits for this.
        QMetaObject::invokeMethod(
            this, [this, round, answers = std::move(answers)] { take(round, answers); }, Qt::QueuedConnection);
    });
}

void FileSearch::take(int round, const std::vector<Answer>& answers)
{
    m_isLooking = false;
    if (round == m_round) {
        for (const Answer& answer : answers)
            m_known[answer.file] = answer.finding;
        Q_EMIT found();
    }
    if (!m_waiting.empty() && !std::exchange(m_isLooking, true))
        look();
}
