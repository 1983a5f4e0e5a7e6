#pragma once

#include "Patience.h"
#include "import/HelperRun.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

/// The import helper, started by a shell, while it waits because its output isn't read.
class BusyHelper {
public:
    BusyHelper()
    {
        const QByteArray output = QFile::encodeName(m_folder.filePath(QStringLiteral("output")));
        ::mkfifo(output.constData(), S_IRUSR | S_IWUSR);
        m_output = ::open(output.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    }
    ~BusyHelper()
    {
        m_shell.kill();
        m_shell.waitForFinished();
        ::close(m_output);
    }
    BusyHelper(const BusyHelper&) = delete;
    BusyHelper& operator=(const BusyHelper&) = delete;

    /// Starts it with these arguments, in which $$ is the shell's process number, and waits for its first output.
    [[nodiscard]] bool start(const QString& arguments, const std::string& input = {})
    {
        const QString inputFile = m_folder.filePath(QStringLiteral("input"));
        QFile file(inputFile);
        if (!file.open(QIODevice::WriteOnly) || file.write(input.data(), static_cast<qint64>(input.size())) < 0)
            return false;
        file.close();
        m_shell.start(QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"),
                QStringLiteral("'%1' %2 < '%3' > '%4' & echo $!; wait")
                    .arg(helperProgram(), arguments, inputFile, m_folder.filePath(QStringLiteral("output")))});
        if (!QTest::qWaitFor([this] { return m_shell.canReadLine(); }, testPatience))
            return false;
        m_process = m_shell.readLine().trimmed();
        return QTest::qWaitFor([this] { return (outputEvents() & POLLIN) != 0; }, testPatience);
    }

    /// Kills the shell, which is its parent.
    void killParent()
    {
        m_shell.kill();
        m_shell.waitForFinished();
    }

    /// Whether it has ended, so that its output has no writer any more.
    [[nodiscard]] bool hasEnded() const { return (outputEvents() & POLLHUP) != 0; }

    /// Reads what it has written so far. True when there will be no more, because it has ended.
    [[nodiscard]] bool readToTheEnd()
    {
        char bytes[65536];
        while (const ssize_t count = ::read(m_output, bytes, sizeof bytes)) {
            if (count < 0)
                return false;
            m_outputSize += count;
        }
        return hasEnded();
    }
    /// The number of bytes that were read.
    [[nodiscard]] qint64 outputSize() const { return m_outputSize; }

    /// The soft and the hard limit of that name, as the kernel lists them.
    [[nodiscard]] QStringList limit(const QString& name) const
    {
        QFile file(QStringLiteral("/proc/%1/limits").arg(QString::fromUtf8(m_process)));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
            if (line.startsWith(name))
                return line.mid(name.size()).simplified().split(QLatin1Char(' ')).mid(0, 2);
        }
        return {};
    }

private:
    [[nodiscard]] short outputEvents() const
    {
        pollfd state{m_output, POLLIN, 0};
        return ::poll(&state, 1, 0) > 0 ? state.revents : short{0};
    }

    QTemporaryDir m_folder;
    QProcess m_shell;
    QByteArray m_process;
    int m_output = -1;
    qint64 m_outputSize = 0;
};
