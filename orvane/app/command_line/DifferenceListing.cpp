#include "orvane/app/command_line/DifferenceListing.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/compare/DifferenceText.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/scene/fields/NxField.h"

#include <QJsonObject>
#include <QTextStream>

namespace {

using Kind = NxSceneDifference::Kind;
using Side = NxSceneDifferences::Side;

QJsonObject countKinds(const NxSceneDifferences& differences)
{
    QJsonObject counts;
    for (int kind = 0; kind <= static_cast<int>(Kind::Ignored); ++kind)
        counts[orvane::kindText(static_cast<Kind>(kind))] = 0;
    for (const NxSceneDifference& difference : differences.list()) {
        QJsonValueRef count = counts[orvane::kindText(difference.kind)];
        count = count.toInteger() + 1;
    }
    return counts;
}

QJsonValue jsonValue(const NxSceneDifferences& differences, const NxSceneDifference& difference, Side side)
{
    const NxComparedNode& node = differences.node(difference);
    const NxRef<NxNode>& owner = side == Side::Left ? node.left : node.right;
    const NxSceneDifference::Field field = side == Side::Left ? difference.left : difference.right;
    const bool isOfField = difference.kind == Kind::Value || difference.kind == Kind::Ignored;
    if (!owner || (isOfField && field.index == NxSceneDifference::Field::none))
        return {};
    if (difference.kind == Kind::Reordered)
        return static_cast<qint64>(side == Side::Left ? difference.leftNumber : difference.rightNumber);
    if (difference.kind == Kind::Renamed)
        return orvane::toQString(owner->getName());
    if (difference.kind == Kind::Added || difference.kind == Kind::Removed)
        return QString::fromUtf8(owner->getClassName());
    const QString text = orvane::toQString(differences.text(difference, side));
    return difference.kind == Kind::Ignored ? QJsonValue(text == QLatin1String("true")) : QJsonValue(text);
}

QJsonObject jsonObject(const NxSceneDifferences& differences, const NxSceneDifference& difference)
{
    const NxComparedNode& node = differences.node(difference);
    QJsonObject object{{QStringLiteral("kind"), orvane::kindText(difference.kind)},
        {QStringLiteral("path"), orvane::toQString(differences.path(difference))},
        {QStringLiteral("old"), jsonValue(differences, difference, Side::Left)},
        {QStringLiteral("new"), jsonValue(differences, difference, Side::Right)}};
    if (node.left && node.right && node.leftPath != node.rightPath)
        object[QStringLiteral("newPath")] = orvane::toQString(node.rightPath);
    if (const std::string field = differences.fieldName(difference); !field.empty())
        object[QStringLiteral("field")] = orvane::toQString(field);
    const NxField* const left = differences.field(difference, Side::Left);
    const NxField* const field = left != nullptr ? left : differences.field(difference, Side::Right);
    if (field != nullptr)
        object[QStringLiteral("type")] = orvane::typeName(*field);
    if (difference.kind == Kind::Added || difference.kind == Kind::Removed)
        object[QStringLiteral("nodes")] = static_cast<qint64>(difference.leftNumber + difference.rightNumber);
    return object;
}

} // namespace

void DifferenceListing::print() const
{
    for (const NxSceneDifference& difference : m_differences.list()) {
        if (m_output.status() != QTextStream::Ok)
            return;
        m_output << orvane::differenceLine(m_differences, difference) << '\n';
    }
}

void DifferenceListing::printJson(const QString& oldFile, const QString& newFile) const
{
    const QJsonObject head{{QStringLiteral("version"), 1}, {QStringLiteral("old"), oldFile},
        {QStringLiteral("new"), newFile}, {QStringLiteral("equal"), m_differences.list().empty()},
        {QStringLiteral("counts"), countKinds(m_differences)}};
    m_output << orvane::jsonLine(head).chopped(1) << QStringLiteral(",\"differences\":[");
    const char* separator = "\n";
    for (const NxSceneDifference& difference : m_differences.list()) {
        if (m_output.status() != QTextStream::Ok)
            return;
        m_output << separator << orvane::jsonLine(jsonObject(m_differences, difference));
        separator = ",\n";
    }
    m_output << QStringLiteral("\n]}\n");
}
