#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// How the import helper is run.
struct HelperOptions {
    /// The program; empty for the one beside the application.
    QString program;
    /// Memory that it may take, in MiB; nothing for its own default, which the user can set in the environment.
    std::optional<int> memoryMiB;
    /// How long it may go without taking or giving a byte; nothing for three times the processor time that it may take
    /// (see `orvane::processorTimeFor`).
    std::optional<std::chrono::milliseconds> patience;
    /// How long it may run after the last byte of its input; nothing for six times that processor time.
    std::optional<std::chrono::milliseconds> timeLimit;
    /// The most that it may write, in bytes.
    std::size_t outputLimit = std::size_t{4} << 30;
};

/// A run of the import helper: writes its input, collects its output, and kills it when it exceeds its limits.
///
/// It ends with exactly one of `ended` and `failed`, emitted from the event loop, unless it is destroyed first; then
/// the process is killed. When the tool itself ends, however that ends, the process is killed as well. Thread of the
/// user interface only.
class HelperProcess : public QObject {
    Q_OBJECT

public:
    /// `inputSize` is the number of bytes that the process reads from files.
    HelperProcess(const HelperOptions& options, const QStringList& arguments, std::uintmax_t inputSize = 0);
    ~HelperProcess() override;

    void start();
    /// Kills the process; nothing is emitted any more.
    void kill();

    /// Gives the process something to read.
    void write(std::string_view bytes);
    /// Closes the input of the process: there is no more to read.
    void closeInput();
    /// How many bytes wait to be read by the process.
    [[nodiscard]] std::size_t pendingInput() const;

    /// Hands over what the process has written since the last call; at `ended` that is all the rest.
    [[nodiscard]] std::string takeOutput();

Q_SIGNALS:
    /// The process took some of what was written to it.
    void inputTaken();
    /// The process wrote something.
    void outputGrew();
    /// The process ended by itself and says that all is well.
    void ended();
    /// Why there will be no result. `byHelper` is true if the text is the helper's own message, which names the file.
    void failed(const QString& reason, bool byHelper);

private:
    void takeOutputOfProcess();
    void takeMessagesOfProcess();
    void takeEnd(int exitCode, QProcess::ExitStatus status);
    void takeError(QProcess::ProcessError error);
    void fail(const QString& reason, bool byHelper = false);
    [[nodiscard]] QString crashReason(int signal) const;
    [[nodiscard]] QStringList allArguments() const;
    void setTimes();

    HelperOptions m_options;
    QStringList m_arguments;
    std::uintmax_t m_inputSize; // of files, and what was written to the process
    QProcess m_process;
    QTimer m_patience;
    QTimer m_deadline;
    std::string m_output; // that wasn't taken yet
    std::size_t m_outputSize = 0; // of all of it
    QByteArray m_messages; // the end of what it said on standard error
    bool m_ended = false;
};
