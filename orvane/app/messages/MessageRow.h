#pragma once

#include "orvane/app/messages/MessageSeverity.h"

#include <QFrame>

class MessageText;
class QHBoxLayout;

/// One message of the message bar: icon, text that can be selected, and a button that closes it.
class MessageRow : public QFrame {
    Q_OBJECT

public:
    MessageRow(MessageSeverity severity, const QString& text, const QString& topic, QWidget* parent);

    [[nodiscard]] QString text() const;
    [[nodiscard]] const QString& topic() const noexcept { return m_topic; }
    /// Adds the button that accepts what the message asks for.
    void addButton(const QString& text);
    [[nodiscard]] bool hasButton() const noexcept { return m_hasButton; }

Q_SIGNALS:
    void accepted();
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MessageSeverity m_severity;
    QString m_topic;
    MessageText* m_text;
    QHBoxLayout* m_layout;
    bool m_hasButton = false;
};
