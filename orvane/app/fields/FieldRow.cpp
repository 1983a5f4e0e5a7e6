#include "orvane/app/fields/FieldRow.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/scene/fields/NxMField.h"

#include <QCoreApplication>

#include <utility>

namespace {

QString beginningOfText(const std::string& text)
{
    constexpr auto length = FieldRow::shownCharacters;
    const QString beginning = orvane::toQString(std::string_view(text).substr(0, 4 * (length + 1)));
    return beginning.size() <= length ? beginning : beginning.left(length) + QChar(0x2026);
}

QString valueText(const NxField& field)
{
    QString text = orvane::oneLine(orvane::beginningOf(field, FieldRow::shownCharacters));
    if (const auto* const list = dynamic_cast<const NxMField*>(&field))
        text.prepend(orvane::rowCountText(*list) + QStringLiteral("  "));
    return text;
}

} // namespace

FieldRow::FieldRow(FieldSet fields, QString name, NxType declaringType)
    : m_fields(std::move(fields))
    , m_name(std::move(name))
    , m_declaringType(declaringType)
{
}

FieldRow::FieldRow(const NxFieldContainer::UnknownField& field)
    : m_name(orvane::shortLine(orvane::toQString(field.name)))
    , m_state(State{false, true, field.ignored})
    , m_text(orvane::oneLine(beginningOfText(field.text)))
{
}

QString FieldRow::type() const
{
    return m_fields.isEmpty() ? QCoreApplication::translate("FieldRow", "unknown") : orvane::typeName(m_fields.first());
}

bool FieldRow::isList() const
{
    return dynamic_cast<const NxMField*>(first()) != nullptr;
}

QString FieldRow::mixedText()
{
    return QString(QChar(0x2014));
}

const QString& FieldRow::text() const
{
    if (m_text.isNull())
        m_text = isMixed() ? mixedText() : valueText(m_fields.first());
    return m_text;
}

QString FieldRow::textOf(const FieldSet& fields)
{
    return fields.isMixed() ? mixedText() : valueText(fields.first());
}

FieldRow::State FieldRow::state() const
{
    if (m_fields.count() == 1)
        return {false, m_fields.isChanged(), m_fields.isIgnored()};
    if (!m_state)
        m_state = State{m_fields.isMixed(), m_fields.isChanged(), m_fields.isIgnored()};
    return *m_state;
}

void FieldRow::forget()
{
    if (m_fields.isEmpty())
        return; // it can't be edited
    m_state.reset();
    m_text = QString();
}
