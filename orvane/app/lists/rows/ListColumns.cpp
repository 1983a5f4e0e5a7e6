#include "orvane/app/lists/rows/ListColumns.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/list/NxMFName.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/text/ValueText.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

using meridane::FieldComponents;

ListColumns::Kind columnKindOf(const FieldComponents& components, bool isEnum)
{
    if (isEnum)
        return ListColumns::Kind::Choice;
    return components.number() == FieldComponents::Number::Flag ? ListColumns::Kind::Flag : ListColumns::Kind::Number;
}

} // namespace

ListColumns::ListColumns(NxMField& list)
    : m_list(&list)
    , m_components(FieldComponents::of(list))
    , m_strings(dynamic_cast<const NxMFString*>(&list))
    , m_names(dynamic_cast<const NxMFName*>(&list))
    , m_enums(dynamic_cast<const NxMFEnum*>(&list))
    , m_count(m_components != nullptr ? m_components->count() : 1)
{
    if (m_components != nullptr) {
        m_kind = columnKindOf(*m_components, m_enums != nullptr);
        m_isColor = m_components->name(0) == "r";
        m_isFloat = m_components->number() == FieldComponents::Number::Float;
    } else if (m_strings != nullptr || m_names != nullptr) {
        m_kind = Kind::Text;
    }
}

QString ListColumns::title(int column) const
{
    const QString name = m_components != nullptr ? orvane::toQString(m_components->name(column)) : QString();
    return name.isEmpty() ? QCoreApplication::translate("ListColumns", "Value") : name;
}

std::vector<std::string> ListColumns::variables() const
{
    std::vector<std::string> names;
    for (int column = 0; m_components != nullptr && column < m_count; ++column) {
        const std::string_view name = m_components->name(column);
        names.emplace_back(name.empty() ? "x" : name);
    }
    return names;
}

QList<ListColumns::Choice> ListColumns::choices() const
{
    QList<Choice> choices;
    if (m_enums == nullptr)
        return choices;
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    m_enums->getEnums(count, values, names);
    for (int i = 0; i < count; ++i)
        choices.append({orvane::toQString(names[i]), values[i]});
    return choices;
}

QString ListColumns::text(int row, int column) const
{
    if (m_list == nullptr || row < 0 || row >= m_list->getNum())
        return {};
    if (m_kind != Kind::Number)
        return textOf(row);
    std::string text;
    appendNumber(text, m_components->get(*m_list, row, column));
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString ListColumns::textOf(int row) const
{
    if (m_strings != nullptr)
        return orvane::toQString((*m_strings)[row]);
    if (m_names != nullptr)
        return orvane::toQString((*m_names)[row]);
    VbString text;
    m_list->get1(row, text);
    return orvane::toQString(text);
}

QString ListColumns::textRefusal(const QString& text) const
{
    if (m_kind != Kind::Text)
        return {};
    if (text.contains(QChar(0)))
        return QCoreApplication::translate("ListColumns", "A text can't have a NUL character.");
    if (m_names == nullptr)
        return {};
    const auto found = std::ranges::find_if(text, [](QChar sign) { return sign.unicode() > 0xFF; });
    return found == text.end()
        ? QString()
        : QCoreApplication::translate("ListColumns", "A name can't have the character \"%1\", only those of Latin-1.")
              .arg(*found);
}

// A float has a shorter text than the same number as a double.
void ListColumns::appendNumber(std::string& text, double number) const
{
    if (m_isFloat)
        meridane::writeValue(text, static_cast<float>(number));
    else
        meridane::writeValue(text, number);
}

double ListColumns::number(int row, int column) const
{
    return m_components != nullptr ? m_components->get(*m_list, row, column) : std::numeric_limits<double>::quiet_NaN();
}
