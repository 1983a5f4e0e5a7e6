#include "orvane/app/messages/MessageBar.h"

#include "orvane/app/messages/MessageRow.h"

#include <QAccessible>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// How important a message is; questions wait for an answer.
int rankOf(const MessageRow& row)
{
    return row.hasButton() ? static_cast<int>(MessageSeverity::Error) + 1 : static_cast<int>(row.severity());
}

} // namespace

MessageBar::MessageBar(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(1);
    hide();
}

void MessageBar::showMessage(Severity severity, const QString& text, const QString& topic)
{
    showLogged(severity, text, topic);
    Q_EMIT messageAdded(severity, text);
}

void MessageBar::showLogged(Severity severity, const QString& text, const QString& topic)
{
    clearTopic(topic);
    if (!isShown(text))
        add(new MessageRow(severity, text, topic, this));
}

void MessageBar::showQuestion(
    const QString& text, const QString& topic, const QString& buttonText, const std::function<void()>& accept)
{
    showQuestion(text, topic, {{buttonText, QStringLiteral("acceptMessage"), accept}});
}

void MessageBar::showQuestion(const QString& text, const QString& topic, const std::vector<Answer>& answers)
{
    Q_EMIT messageAdded(Severity::Warning, text);
    clearTopic(topic);
    if (isShown(text))
        return;
    auto* row = new MessageRow(Severity::Warning, text, topic, this);
    for (const Answer& answer : answers)
        row->addButton(answer.text, answer.name, [this, row, answer] {
            if (answer.closes)
                remove(row);
            answer.run();
        });
    add(row);
}

bool MessageBar::isShown(const QString& text) const
{
    return std::any_of(m_rows.begin(), m_rows.end(), [&text](const MessageRow* row) { return row->text() == text; });
}

void MessageBar::makeRoomFor(const MessageRow& row)
{
    while (m_rows.size() >= capacity) {
        // The first of equal ones, which is the oldest.
        MessageRow* const least = *std::min_element(m_rows.begin(), m_rows.end(),
            [](const MessageRow* left, const MessageRow* right) { return rankOf(*left) < rankOf(*right); });
        if (rankOf(*least) > rankOf(row))
            return;
        remove(least);
    }
}

void MessageBar::add(MessageRow* row)
{
    makeRoomFor(*row);
    connect(row, &MessageRow::closed, this, [this, row] {
        remove(row);
        Q_EMIT closed(row->topic());
    });
    m_rows.push_back(row);
    m_layout->addWidget(row);
    show();
    QAccessibleEvent alert(row, QAccessible::Alert); // which screen readers say at once
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::clearTopic(const QString& topic)
{
    if (topic.isEmpty())
        return;
    const auto found
        = std::find_if(m_rows.begin(), m_rows.end(), [&topic](const MessageRow* row) { return row->topic() == topic; });
    if (found != m_rows.end())
        remove(*found);
}

void MessageBar::clear()
{
    while (!m_rows.empty())
        remove(m_rows.back());
}

QStringList MessageBar::texts() const
{
    QStringList texts;
    for (const MessageRow* row : m_rows)
        texts.append(row->text());
    return texts;
}

void MessageBar::remove(MessageRow* row)
{
    std::erase(m_rows, row);
    m_layout->removeWidget(row);
    row->hide();
    row->deleteLater();
    setVisible(!m_rows.empty());
}
