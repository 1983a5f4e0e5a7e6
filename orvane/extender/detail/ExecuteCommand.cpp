#include "orvane/extender/detail/ExecuteCommand.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/detail/CallExtensions.h"

#include <QScopedValueRollback>

#include <stdexcept>

namespace {

constexpr int mostNested = 100;

} // namespace

void orvane::executeCommand(OrvCommand& command)
{
    static int depth = 0;
    const QScopedValueRollback nested(depth, depth + 1);
    callExtensions(QStringLiteral("a command"), [&] {
        if (depth > mostNested)
            throw std::length_error("commands push commands without end");
        command.execute();
    });
}
