#pragma once

#include "orvane/app/base/Result.h"

#include <QString>
#include <QTextStream>

class QJsonObject;

namespace orvane {

/// Standard output, buffered.
class StandardOutput {
public:
    StandardOutput();

    [[nodiscard]] QTextStream& stream() noexcept { return m_stream; }
    /// Writes what is still buffered. Fails if any of the output couldn't be written.
    Result<> finish();

private:
    QTextStream m_stream;
};

/// An object as JSON without line ends.
[[nodiscard]] QString jsonLine(const QJsonObject& object);

/// Writes a message to standard error as one line, whatever is in it.
void printError(const QString& message);

} // namespace orvane
