#include "orvane/app/language/ToolkitText.h"

#include "orvane/app/language/detail/ToolkitPatterns.h"

#include <QCoreApplication>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace orvane {
namespace {

QString inLanguage(const char* text)
{
    return QCoreApplication::translate("ToolkitText", text);
}

/// Finds what is in the places of %1, %2, … of a message.
class MessageParts {
public:
    explicit MessageParts(const ToolkitPattern& pattern)
        : m_pattern(pattern)
    {
        QString rest = QString::fromUtf8(pattern.text);
        for (int number = 1;; ++number) {
            const qsizetype place = rest.indexOf(QStringLiteral("%") + QString::number(number));
            if (place < 0)
                break;
            m_fixed.append(rest.left(place));
            rest.remove(0, place + 2);
        }
        m_fixed.append(rest);
    }

    [[nodiscard]] const ToolkitPattern& pattern() const noexcept { return m_pattern; }

    [[nodiscard]] std::optional<QStringList> in(QStringView text) const
    {
        if (m_fixed.size() == 1)
            return text == m_fixed.first() ? std::optional(QStringList()) : std::nullopt;
        if (!text.startsWith(m_fixed.first()) || !text.endsWith(m_fixed.last()))
            return std::nullopt;
        const qsizetype end = text.size() - m_fixed.last().size();
        qsizetype start = m_fixed.first().size();
        QStringList parts;
        for (qsizetype i = 1; i < m_fixed.size(); ++i) {
            const bool isLast = i == m_fixed.size() - 1;
            const qsizetype next = isLast ? end : text.indexOf(m_fixed.at(i), start);
            if (next < start || next > end)
                return std::nullopt;
            parts.append(text.mid(start, next - start).toString());
            start = next + m_fixed.at(i).size();
        }
        return parts;
    }

private:
    ToolkitPattern m_pattern;
    QStringList m_fixed; // the texts between the parts, and at both ends
};

const std::vector<MessageParts>& toolkitMessages()
{
    static const std::vector<MessageParts> all = [] {
        const auto patterns = toolkitPatterns();
        return std::vector<MessageParts>(patterns.begin(), patterns.end());
    }();
    return all;
}

QString withParts(const QString& text, const QStringList& parts)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPart = text.at(i) == u'%' && i + 1 < text.size() && text.at(i + 1).isDigit();
        result += isPart ? parts.value(text.at(i + 1).digitValue() - 1) : QString(text.at(i));
        i += isPart ? 1 : 0;
    }
    return result;
}

} // namespace

QString toolkitText(const QString& english)
{
    const char* const first = toolkitPatterns().front().text;
    if (inLanguage(first) == QLatin1String(first)) // the language is English
        return english;
    for (const MessageParts& message : toolkitMessages()) {
        std::optional<QStringList> parts = message.in(english);
        if (!parts)
            continue;
        if (const int phrase = message.pattern().phrase; phrase > 0)
            (*parts)[phrase - 1] = toolkitText(parts->at(phrase - 1));
        return withParts(inLanguage(message.pattern().text), *parts);
    }
    return english;
}

QString nodeDescription(std::string_view english)
{
    return english.empty() ? QString() : QCoreApplication::translate("NodeDescriptions", std::string(english).c_str());
}

} // namespace orvane
