#include "orvane/app/base/HelperProcess.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/transfer/WorkTime.h"

#include "meridane/base/NxPreferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcessEnvironment>

#include <algorithm>
#include <csignal>
#include <exception>
#include <utility>

namespace {

QString helperProgram(const HelperOptions& options)
{
    return options.program.isEmpty()
        ? QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("orvane-import"))
        : options.program;
}

// Heap tuning: the import library allocates and frees hundreds of thousands of small blocks, and is five per cent
// faster when the C library caches more of them. The setting must be in the environment before the process starts. The
// user's own settings are appended, so they override it.
QProcessEnvironment helperEnvironment()
{
    const QString name = QStringLiteral("GLIBC_TUNABLES");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString others = environment.value(name);
    const QString own = QStringLiteral("glibc.malloc.tcache_count=8192");
    environment.insert(name, others.isEmpty() ? own : own + QLatin1Char(':') + others);
    const QString limit = orvane::toQString(NxPreferences::getString("ORVANE_IMPORT_MEMORY", VbString()));
    if (!limit.isEmpty())
        environment.insert(QStringLiteral("ORVANE_IMPORT_MEMORY"), limit);
    return environment;
}

// Arguments are passed as text, percent-encoded if a name among them isn't UTF-8.
QStringList encoded(const QStringList& arguments)
{
    const bool isText = std::all_of(
        arguments.begin(), arguments.end(), [](const QString& argument) { return argument.isValidUtf16(); });
    if (isText)
        return arguments;
    QStringList result{QStringLiteral("--encoded")};
    for (const QString& argument : arguments) {
        const QByteArray bytes = QByteArray::fromStdString(orvane::toStdFileName(argument));
        result
            += argument.startsWith(QStringLiteral("--")) ? argument : QString::fromLatin1(bytes.toPercentEncoding("/"));
    }
    return result;
}

constexpr qsizetype longestMessage = 2000;

// The last line that isn't blank: earlier ones are the chatter of a library.
QString lastLine(const QByteArray& bytes)
{
    const QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last().simplified();
}

double inSeconds(const QTimer& timer)
{
    return std::chrono::duration<double>(timer.intervalAsDuration()).count();
}

} // namespace

HelperProcess::HelperProcess(const HelperOptions& options, const QStringList& arguments, std::uintmax_t inputSize)
    : m_options(options)
    , m_arguments(arguments)
    , m_inputSize(inputSize)
{
    m_options.program = helperProgram(options);
    m_patience.setSingleShot(true);
    m_deadline.setSingleShot(true);
    setTimes();
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &HelperProcess::takeOutputOfProcess);
    connect(&m_process, &QProcess::readyReadStandardError, this, &HelperProcess::takeMessagesOfProcess);
    connect(&m_process, &QProcess::finished, this, &HelperProcess::takeEnd);
    // Queued, since `start` may report at once that the process can't be started.
    connect(&m_process, &QProcess::errorOccurred, this, &HelperProcess::takeError, Qt::QueuedConnection);
    connect(&m_process, &QProcess::bytesWritten, this, [this] {
        m_patience.start();
        Q_EMIT inputTaken();
    });
    connect(&m_patience, &QTimer::timeout, this,
        [this] { fail(tr("the import helper did nothing for %1 s and was stopped").arg(inSeconds(m_patience))); });
    connect(&m_deadline, &QTimer::timeout, this,
        [this] { fail(tr("the import helper wasn't ready after %1 s and was stopped").arg(inSeconds(m_deadline))); });
}

HelperProcess::~HelperProcess()
{
    kill();
    m_process.waitForFinished();
}

void HelperProcess::start()
{
    m_patience.start();
    m_deadline.start();
    m_process.setProcessEnvironment(helperEnvironment());
    m_process.start(m_options.program, allArguments());
}

QStringList HelperProcess::allArguments() const
{
    QStringList arguments{QStringLiteral("--parent"), QString::number(QCoreApplication::applicationPid())};
    if (m_options.memoryMiB)
        arguments << QStringLiteral("--memory") << QString::number(*m_options.memoryMiB);
    return arguments + encoded(m_arguments);
}

// A running timer restarts with the new interval.
void HelperProcess::setTimes()
{
    // The processor may have other work, or be waiting for a slow disk.
    const std::chrono::milliseconds processorTime = orvane::processorTimeFor(m_inputSize);
    m_patience.setInterval(m_options.patience.value_or(3 * processorTime));
    m_deadline.setInterval(m_options.timeLimit.value_or(6 * processorTime));
}

void HelperProcess::kill()
{
    m_ended = true;
    m_patience.stop();
    m_deadline.stop();
    m_process.disconnect(this);
    m_process.kill();
}

void HelperProcess::write(std::string_view bytes)
{
    m_process.write(bytes.data(), static_cast<qint64>(bytes.size()));
    m_inputSize += bytes.size();
    setTimes();
}

void HelperProcess::closeInput()
{
    m_process.closeWriteChannel();
}

std::size_t HelperProcess::pendingInput() const
{
    return static_cast<std::size_t>(m_process.bytesToWrite());
}

std::string HelperProcess::takeOutput()
{
    return std::exchange(m_output, {});
}

void HelperProcess::takeOutputOfProcess()
{
    m_patience.start();
    const std::size_t before = m_outputSize;
    try {
        while (const qint64 available = m_process.bytesAvailable()) {
            const std::size_t size = m_output.size();
            m_output.resize(size + static_cast<std::size_t>(available));
            const qint64 count = m_process.read(m_output.data() + size, available);
            m_output.resize(size + static_cast<std::size_t>(std::max<qint64>(count, 0)));
            m_outputSize += m_output.size() - size;
        }
    } catch (const std::exception&) { // for want of memory, or of length
        fail(tr("what the import helper wrote doesn't fit in memory"));
        return;
    }
    if (m_outputSize > m_options.outputLimit)
        fail(tr("the import helper wrote more than %1 MiB and was stopped").arg(m_options.outputLimit >> 20));
    else if (m_outputSize > before)
        Q_EMIT outputGrew();
}

void HelperProcess::takeMessagesOfProcess()
{
    // Only the end of a long output is kept.
    m_messages = (m_messages + m_process.readAllStandardError()).right(longestMessage);
}

void HelperProcess::takeEnd(int exitCode, QProcess::ExitStatus status)
{
    takeOutputOfProcess();
    takeMessagesOfProcess();
    if (m_ended)
        return;
    const QString message = lastLine(m_messages);
    if (status == QProcess::CrashExit) {
        fail(crashReason(exitCode));
    } else if (exitCode != 0 && !message.isEmpty()) {
        fail(message, true);
    } else if (exitCode != 0) {
        fail(tr("the import helper ended with status %1 and didn't say why").arg(exitCode));
    } else {
        m_ended = true;
        m_patience.stop();
        m_deadline.stop();
        Q_EMIT ended();
    }
}

void HelperProcess::takeError(QProcess::ProcessError error)
{
    // The other errors are reported when the process has ended.
    if (error == QProcess::FailedToStart && !m_ended)
        fail(tr("the import helper %1 can't be started: %2").arg(m_options.program, m_process.errorString()));
}

void HelperProcess::fail(const QString& reason, bool byHelper)
{
    kill();
    m_output = {};
    Q_EMIT failed(reason, byHelper);
}

QString HelperProcess::crashReason(int signal) const
{
    // When memory is short, the kernel kills a process without a message.
    if (signal == SIGXCPU)
        return tr("the import helper needed too much processor time and was stopped");
    if (signal == SIGKILL)
        return tr("the import helper was killed, maybe for want of memory");
    return tr("the import helper crashed with signal %1").arg(signal);
}
