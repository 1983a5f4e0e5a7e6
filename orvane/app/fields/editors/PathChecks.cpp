#include "orvane/app/fields/editors/PathChecks.h"

#include "orvane/app/base/TextConversion.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <filesystem>
#include <string>
#include <system_error>

namespace {

constexpr qint64 validFor = 1000; // milliseconds
constexpr int mostFiles = 1000;

} // namespace

PathChecks::PathChecks(QObject* parent)
    : QObject(parent)
{
    m_clock.start();
}

PathChecks::~PathChecks() = default;

PathChecks::State PathChecks::stateOf(const QString& fileName)
{
    if (m_known.size() > mostFiles)
        m_known.clear();
    Known& known = m_known[fileName];
    const bool isOld = known.state == State::Unknown || m_clock.elapsed() - known.since > validFor;
    if (isOld && !known.isRunning) {
        known.isRunning = true;
        start(fileName);
    }
    return known.state;
}

void PathChecks::start(const QString& fileName)
{
    // Called on the application, which outlives the threads of the pool.
    QThreadPool::globalInstance()->start([self = QPointer(this), fileName, name = orvane::toStdFileName(fileName)] {
        std::error_code error;
        const bool isPresent = std::filesystem::exists(name, error);
        QMetaObject::invokeMethod(
            qApp,
            [self, fileName, isPresent] {
                if (self != nullptr)
                    self->take(fileName, isPresent);
            },
            Qt::QueuedConnection);
    });
}

void PathChecks::take(const QString& fileName, bool isPresent)
{
    const State state = isPresent ? State::Present : State::Missing;
    Known& known = m_known[fileName];
    const bool isNew = state != known.state;
    known = {state, m_clock.elapsed(), false};
    if (isNew)
        Q_EMIT changed();
}
