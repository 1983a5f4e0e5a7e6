#pragma once

#include <QColor>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <deque>

class QTextEdit;

namespace orvane {

/// Shows messages in a text view, each as a paragraph of its own.
///
/// The view needs time for each paragraph. So that many messages at once don't block the window, they are shown in
/// turns, and the event loop handles other events in between.
class MessageQueue final : public QObject {
public:
    /// The view must live as long as the queue.
    explicit MessageQueue(QTextEdit& view);
    ~MessageQueue() override;

    /// Shows a message, now or in one of the next turns, after those that were added before.
    void add(const QColor& color, const QString& text);
    /// Shows a message now, before those that wait.
    void show(const QColor& color, const QString& text);
    /// Empties the view. The messages that wait are still shown.
    void clearView();

    bool event(QEvent* event) override;

private:
    struct Message {
        QColor color;
        QString text;
    };

    void startTurn();
    [[nodiscard]] bool turnIsOver() const;
    void takeTurn();

    QTextEdit& m_view;
    std::deque<Message> m_waiting; // from the oldest to the newest
    QElapsedTimer m_turn; // valid while an event that ends the turn is posted
};

} // namespace orvane
