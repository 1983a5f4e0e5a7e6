#pragma once

#include "orvane/app/messages/MessageSeverity.h"

#include <QFrame>

#include <functional>

class MessageText;
class QHBoxLayout;

/// One message of the message bar: icon, text that can be selected, and a button that closes it.
class MessageRow : public QFrame {
    Q_OBJECT

public:
    MessageRow(MessageSeverity severity, const QString& text, const QString& topic, QWidget* parent);

    [[nodiscard]] QString text() const;
    [[nodiscard]] const QString& topic() const noexcept { return m_topic; }
    /// Adds a button to the right of those that are there, which calls `clicked`.
    void addButton(const QString& text, const QString& name, const std::function<void()>& clicked);
    [[nodiscard]] bool hasButton() const noexcept { return m_buttons > 0; }
    [[nodiscard]] MessageSeverity severity() const noexcept { return m_severity; }

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MessageSeverity m_severity;
    QString m_topic;
    QWidget* m_icon; // only its place
    MessageText* m_text;
    QHBoxLayout* m_layout;
    int m_buttons = 0;
};
