#include "app/recovery/RecoveryCase.h"
#include "scene/FieldCatalogue.h"

#include "meridane/base/ContentHash.h"

#include <QProcess>

#include <algorithm>
#include <csignal>
#include <random>

#include <unistd.h>

namespace {

/// A program that edits a scene, and what it says about it.
class Editing {
public:
    Editing(const QString& fileName, const QString& folder, unsigned seed)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(EDIT_UNDER_KILL), {fileName, folder, QString::number(seed)});
    }

    /// Lets it edit for that time from its first state on, and kills it.
    bool killAfter(int milliseconds)
    {
        while (m_states.empty() && m_process.waitForReadyRead(testPatience))
            readLines();
        if (m_states.empty())
            return false;
        while (now() < m_states.front().time + milliseconds) {
            m_process.waitForReadyRead(1);
            readLines();
        }
        m_process.kill();
        m_killed = now();
        const bool ended = m_process.waitForFinished(testPatience);
        readLines();
        return ended && m_process.exitStatus() == QProcess::CrashExit && m_process.exitCode() == SIGKILL;
    }

    /// How long before the kill the scene had been in the state of that text for the last time, in milliseconds;
    /// nothing if it hadn't been since the state that was kept last.
    [[nodiscard]] std::optional<qint64> ageOf(const std::string& text) const
    {
        const std::string hash = meridane::ContentHash::of(text).toText();
        for (std::size_t i = m_states.size(); i-- > m_kept;) {
            if (m_states[i].hash == hash)
                return i + 1 == m_states.size() ? 0 : std::max<qint64>(m_killed - m_states[i + 1].time, 0);
        }
        return std::nullopt;
    }
    [[nodiscard]] std::size_t stateCount() const { return m_states.size(); }
    /// How many states were followed by another one when they had been kept.
    [[nodiscard]] int keptCount() const { return m_keptCount; }

private:
    struct State {
        qint64 time;
        std::string hash;
    };

    static qint64 now()
    {
        const auto time = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    }

    void readLines()
    {
        while (m_process.canReadLine()) {
            const QList<QByteArray> words = m_process.readLine().trimmed().split(' ');
            if (words.front() == "state") {
                m_states.push_back({words.at(1).toLongLong(), words.at(2).toStdString()});
            } else if (words.front() == "kept") {
                m_kept = m_states.size() - 1;
                ++m_keptCount;
            }
        }
    }

    QProcess m_process;
    std::vector<State> m_states;
    std::size_t m_kept = 0; // the newest state that the program knows to be in the file
    int m_keptCount = 0;
    qint64 m_killed = 0;
};

} // namespace

/// Programs that are killed while the user edits.
class TestRecoveryKills : public RecoveryCase {
    Q_OBJECT

private Q_SLOTS:
    // ORVANE_TEST_KILLS gives the number of kills; `script/faults` kills a thousand times. A slow machine may be late
    // with a capture, so that the age of what is recovered is only reported here.
    void killedAtAnyMomentALateStateComesBack()
    {
        for (const FieldKind& kind : fieldCatalogue())
            kind.makeNode()->getTypeId(); // so that their classes are known here, too
        bool given = false;
        const int wanted = qEnvironmentVariableIntValue("ORVANE_TEST_KILLS", &given);
        const int kills = given ? wanted : 20;
        std::mt19937 random(11);
        qint64 oldest = 0;
        int kept = 0;
        std::size_t states = 0;
        for (int kill = 0; kill < kills; ++kill) {
            m_folder = std::make_unique<QTemporaryDir>();
            const QString file = path(QStringLiteral("robot.mrd"));
            writeFile(file, AppScenes::robotText);
            Editing editing(file, recoveryFolder().path(), static_cast<unsigned>(kill));
            QVERIFY(editing.killAfter(std::uniform_int_distribution<int>(0, 1500)(random)));
            std::string text = stateOfKilled();
            if (text == "none")
                text = NxSceneWriter::toText(AppScenes::robot().get());
            const auto age = editing.ageOf(text);
            QVERIFY2(age, qPrintable(QStringLiteral("kill %1: %2").arg(kill).arg(QString::fromStdString(text))));
            oldest = std::max(oldest, *age);
            kept += editing.keptCount();
            states += editing.stateCount();
        }
        qInfo(
            "%d kills, %zu states, %d of them known to be kept; the oldest state that was recovered had ended %lld ms "
            "before the kill",
            kills, states, kept, oldest);
        QVERIFY(kept > 0);
    }

private:
    /// Of the newest file, if there are two since the program was about to replace one by the other.
    [[nodiscard]] std::string stateOfKilled() const
    {
        std::string text = "none";
        for (const auto& file : recoveryFolder().lockAbandoned()) {
            text = textOf(file->fileName());
            if (text.front() != '[' && text != "none")
                break;
        }
        return text;
    }
};

QTEST_MAIN(TestRecoveryKills)
#include "tst_RecoveryKills.moc"
