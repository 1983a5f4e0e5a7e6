#pragma once

#include "orvane/extender/OrvCommand.h"

#include <QStringList>

#include <functional>
#include <utility>

/// Notes each call of the host as "operation name", its destruction as "destroy name". An operation may be given
/// something to do, behind the note.
class TestCommand : public OrvCommand {
public:
    using Action = std::function<void()>;

    TestCommand(const QString& name, QStringList& calls)
        : m_name(name)
        , m_calls(calls)
    {
    }
    ~TestCommand() override { note("destroy", {}); }

    void execute() override { note("execute", whenExecuted); }
    void undo() override { note("undo", whenUndone); }
    void redo() override { note("redo", whenRedone); }

    Action whenExecuted;
    Action whenUndone;
    Action whenRedone;

private:
    void note(const char* operation, const Action& action)
    {
        m_calls.append(QLatin1String(operation) + QLatin1Char(' ') + m_name);
        if (action)
            action();
    }

    QString m_name;
    QStringList& m_calls;
};
