#pragma once

#include <QString>
#include <QTextStream>

#include <optional>

namespace orvane {

/// Standard output, buffered.
class StandardOutput {
public:
    StandardOutput();

    [[nodiscard]] QTextStream& stream() noexcept { return m_stream; }
    /// Writes what is still buffered. The result is the message that not everything could be written, or nothing.
    [[nodiscard]] std::optional<QString> finish();

private:
    QTextStream m_stream;
};

/// Writes a message to standard error as one line, whatever is in it.
void printError(const QString& message);

} // namespace orvane
