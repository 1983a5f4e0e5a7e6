#include "orvane/app/fields/values/PastedValue.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/values/FieldTrial.h"
#include "orvane/app/fields/values/PastedNumbers.h"
#include "orvane/app/fields/values/Refusal.h"

#include "meridane/base/values/VbString.h"
#include "meridane/query/NumberText.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFName.h"
#include "meridane/scene/fields/single/NxSFString.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <utility>

namespace orvane {

namespace {

using meridane::FieldComponents;

struct PastedValueTexts {
    Q_DECLARE_TR_FUNCTIONS(PastedValue)
};

std::string textOf(const NxField& field)
{
    VbString text;
    field.get(text);
    return std::string(text.view());
}

/// The names of an enumeration, in any case of letters and between any signs, in the text form; empty if one of them
/// doesn't exist.
QString namesOf(const NxSFEnum& field, const QString& text)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    field.getEnums(count, values, names);
    static const QRegularExpression separators(QStringLiteral("[\\s,;|]+"));
    QStringList found;
    const QStringList words = text.split(separators, Qt::SkipEmptyParts);
    for (const QString& word : words) {
        for (int i = 0; i < count; ++i) {
            const QString name = QString::fromLatin1(names[i].getString());
            if (name.compare(word, Qt::CaseInsensitive) == 0) {
                found += name;
                break;
            }
        }
    }
    return found.size() == words.size() ? found.join(QStringLiteral(" | ")) : QString();
}

/// Rows of numbers in the text form.
std::string rowsText(const std::vector<double>& numbers, const FieldComponents& components, bool isList)
{
    const auto count = static_cast<std::size_t>(components.count());
    std::string text = isList ? "[" : "";
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0)
            text += i % count == 0 ? ", " : " ";
        if (components.number() == FieldComponents::Number::Flag)
            text += numbers[i] != 0 ? "true" : "false";
        else
            text += meridane::numberText(numbers[i], components.number());
    }
    return isList ? text + "]" : text;
}

} // namespace

Result<std::string> pastedValue(const NxField& field, const QString& text)
{
    const FieldTrial trial(field);
    NxField* const spare = trial.field();
    if (spare == nullptr)
        return text.toStdString();
    // Any text is one, also a text in quotes.
    if (auto* const string = dynamic_cast<NxSFString*>(spare)) {
        string->setValue(VbString(text.toStdString()));
        return textOf(*string);
    }
    const std::string plain = text.trimmed().toStdString();
    if (spare->set(VbString(plain)))
        return plain;
    if (const auto* const choice = dynamic_cast<const NxSFEnum*>(spare)) {
        const QString names = namesOf(*choice, text);
        if (!names.isEmpty() && spare->set(VbString(names.toStdString())))
            return names.toStdString();
        return Failure{refusedText(field, text)};
    }
    const FieldComponents* const components = FieldComponents::of(field);
    if (components == nullptr)
        return Failure{refusedText(field, text)};
    const bool isList = dynamic_cast<const NxMField*>(spare) != nullptr;
    const auto numbers = pastedNumbers(*components, plain, isList);
    if (!numbers)
        return Failure{refusedText(field, text) + u' ' + numbers.error()};
    std::string rows = rowsText(numbers.value(), *components, isList);
    if (!spare->set(VbString(rows)))
        return Failure{
            refusedText(field, text) + u' ' + PastedValueTexts::tr("A number is out of the range of its type.")};
    return rows;
}

} // namespace orvane
