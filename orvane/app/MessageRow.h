#pragma once

#include "orvane/app/MessageBar.h"

#include <QFrame>

class MessageText;

/// One message of the message bar: icon, text that can be selected, and a button that closes it.
class MessageRow : public QFrame {
    Q_OBJECT

public:
    MessageRow(MessageBar::Severity severity, const QString& text, const QString& topic, QWidget* parent);

    [[nodiscard]] QString text() const;
    [[nodiscard]] const QString& topic() const noexcept { return m_topic; }

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MessageBar::Severity m_severity;
    QString m_topic;
    MessageText* m_text;
};
