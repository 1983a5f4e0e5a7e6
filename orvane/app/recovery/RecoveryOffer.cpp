#include "orvane/app/recovery/RecoveryOffer.h"

#include "orvane/app/base/UserLocale.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/recovery/RecoverJob.h"
#include "orvane/app/recovery/SceneRecovery.h"

#include <QDateTime>

#include <chrono>
#include <utility>

namespace {

const QString topic = QStringLiteral("recovery");

QString timeText(std::chrono::system_clock::time_point time)
{
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch());
    return orvane::userLocale().toString(QDateTime::fromMSecsSinceEpoch(milliseconds.count()), QLocale::ShortFormat);
}

} // namespace

RecoveryOffer::RecoveryOffer(FileFlow& files, SceneRecovery& recovery, MessageBar& messages, QObject* parent)
    : QObject(parent)
    , m_files(files)
    , m_recovery(recovery)
    , m_messages(messages)
{
    connect(&m_scan, &RecoveryScan::found, this, &RecoveryOffer::add);
    connect(&messages, &MessageBar::closed, this, [this](const QString& closedTopic) {
        if (closedTopic == topic)
            answer();
    });
}

void RecoveryOffer::start(const RecoveryFolder& folder)
{
    m_scan.start(folder);
}

void RecoveryOffer::add(const Scene& scene)
{
    m_waiting.push_back(scene);
    if (m_waiting.size() == 1)
        showNext();
}

void RecoveryOffer::showNext()
{
    if (m_waiting.empty())
        return;
    const Scene scene = m_waiting.front();
    std::vector<MessageBar::Answer> answers;
    if (scene->problem.isEmpty())
        answers.push_back({tr("Recover"), QStringLiteral("recoverScene"), [this, scene] { recover(scene); }});
    answers.push_back({tr("Discard"), QStringLiteral("discardScene"), [this, scene] { discard(scene); }});
    m_messages.showQuestion(textFor(*scene), topic, answers);
}

// The file of a scene that nobody refers to any more is unlocked, and stays if it wasn't deleted.
void RecoveryOffer::answer()
{
    m_waiting.pop_front();
    showNext();
}

void RecoveryOffer::recover(const Scene& scene)
{
    m_files.openRecovered(
        scene->displayName, scene->fileName,
        [scene] { return std::make_unique<RecoverJob>(scene->file->fileName(), scene->displayName); },
        [this, scene](const orvane::Result<>& result) {
            if (result)
                m_recovery.replaceFile(std::move(scene->file));
            else
                add(scene); // to try again, or to discard it
        });
    answer();
}

void RecoveryOffer::discard(const Scene& scene)
{
    scene->file->remove();
    answer();
}

QString RecoveryOffer::textFor(const AbandonedScene& scene)
{
    const QString name = scene.displayName.isEmpty() ? tr("A scene") : scene.displayName;
    if (!scene.problem.isEmpty())
        return tr("%1 was open when Orvane ended unexpectedly. Its unsaved changes can't be recovered: %2.")
            .arg(name, scene.problem);
    const QString changes
        = scene.commit.steps == 1 ? tr("1 unsaved change") : tr("%1 unsaved changes").arg(scene.commit.steps);
    return tr("%1 was open when Orvane ended unexpectedly. %2 can be recovered, up to %3.")
        .arg(name, changes, timeText(scene.commit.time));
}
