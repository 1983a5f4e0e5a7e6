#pragma once

#include "extender/Recording.h"
#include "extender/TestCommand.h"

#include "orvane/extender/detail/OrvHistory.h"

#include <QTest>

#include <memory>
#include <utility>

/// A test of the undo history, with commands that record what is called.
class HistoryCase : public QObject {
protected:
    /// The action of a command that belongs to none.
    static constexpr int alone = -1;

    /// Pushes a recording command.
    TestCommand* push(OrvHistory& history, const char* name, int action = alone, NxField* field = nullptr)
    {
        auto command = std::make_unique<TestCommand>(QString::fromLatin1(name), m_calls);
        TestCommand* const result = command.get();
        history.push(std::move(command), {action, field, nullptr, nullptr});
        return result;
    }

    /// Pushes a command that does something as it is executed.
    void pushDoing(OrvHistory& history, const char* name, const TestCommand::Action& action)
    {
        auto command = std::make_unique<TestCommand>(QString::fromLatin1(name), m_calls);
        command->whenExecuted = action;
        history.push(std::move(command), {alone, nullptr, nullptr, nullptr});
    }

    /// What is called, from words: an operation and a command's name, and so on.
    static QStringList pairs(const char* text)
    {
        QStringList result;
        const QStringList all = words(text);
        for (qsizetype i = 0; i + 1 < all.size(); i += 2)
            result.append(all.at(i) + u' ' + all.at(i + 1));
        return result;
    }

    QStringList m_calls;
};
