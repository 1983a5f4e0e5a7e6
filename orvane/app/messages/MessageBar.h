#pragma once

#include "orvane/app/messages/MessageSeverity.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

class MessageRow;
class QVBoxLayout;

/// Shows messages inside the window, one below the other, each until the user closes it.
///
/// A message about a topic takes the place of the former one about it. A text that is shown already isn't shown twice.
/// When there are too many, the oldest of the least important ones goes. An error never goes for a warning: if all are
/// more important than the new message, it is shown in addition until the next one comes.
class MessageBar : public QWidget {
    Q_OBJECT

public:
    using Severity = MessageSeverity;
    static constexpr int capacity = 4;

    explicit MessageBar(QWidget* parent = nullptr);

    void showMessage(Severity severity, const QString& text, const QString& topic = {});
    /// The same for a message that the log has already: `messageAdded` isn't emitted.
    void showLogged(Severity severity, const QString& text, const QString& topic = {});
    /// Asks for the user's consent: a message with a button that calls `accept` and closes it. Other messages don't
    /// displace it.
    void showQuestion(
        const QString& text, const QString& topic, const QString& buttonText, const std::function<void()>& accept);
    /// An answer to a question: a button that calls `run`.
    struct Answer {
        QString text;
        QString name; ///< of the button, for tests
        std::function<void()> run;
        bool closes = true; ///< whether the button closes the message as well
    };
    /// The same with several buttons.
    void showQuestion(const QString& text, const QString& topic, const std::vector<Answer>& answers);
    /// Takes the message about a topic away.
    void clearTopic(const QString& topic);
    void clear();

    /// The texts shown, from the top.
    [[nodiscard]] QStringList texts() const;

Q_SIGNALS:
    /// A message or a question was passed to the bar, be it shown already or not.
    void messageAdded(MessageBar::Severity severity, const QString& text);
    /// The user closed the message about that topic, without an answer if it is a question.
    void closed(const QString& topic);

private:
    void add(MessageRow* row);
    void makeRoomFor(const MessageRow& row);
    [[nodiscard]] bool isShown(const QString& text) const;
    void remove(MessageRow* row);

    QVBoxLayout* m_layout;
    std::vector<MessageRow*> m_rows;
};
