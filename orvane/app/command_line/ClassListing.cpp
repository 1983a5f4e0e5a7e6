#include "orvane/app/command_line/ClassListing.h"

#include "orvane/app/base/NearNames.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/fields/values/FactsText.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <cmath>

using orvane::Failure;
using orvane::Result;

namespace {

constexpr qsizetype printedValueLength = 40;

QString nameOf(NxType type)
{
    return QString::fromUtf8(type.getName().getString());
}

/// From the parent up to the class of all nodes.
QStringList basesOf(NxType type)
{
    QStringList bases;
    const NxType root = NxNode::getClassTypeId();
    for (NxType base = type.getParent(); base.isDerivedFrom(root); base = base.getParent())
        bases.append(nameOf(base));
    return bases;
}

/// Rows of texts, printed below each other in columns.
using Row = std::array<QString, 6>;

void printTable(const std::vector<Row>& rows, QTextStream& output)
{
    std::array<qsizetype, std::tuple_size_v<Row>> widths{};
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    for (const Row& row : rows) {
        QString line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (widths[column] > 0)
                line += QStringLiteral("  ") + row[column].leftJustified(widths[column]);
        }
        while (line.endsWith(u' '))
            line.chop(1);
        output << line << '\n';
    }
}

void printClass(NxNode& node, QTextStream& output)
{
    const NxFieldData& data = *node.getFieldData();
    output << nameOf(node.getTypeId()) << " (" << basesOf(node.getTypeId()).join(QStringLiteral(", ")) << ")\n";
    if (!data.getDescription().empty())
        output << orvane::toQString(data.getDescription()) << '\n';
    std::vector<Row> rows;
    for (int i = 0; i < data.getNumFields(); ++i) {
        const NxField& field = *data.getDefault(i);
        const NxFieldFacts& facts = data.getFacts(i);
        rows.push_back({QString::fromUtf8(data.getFieldName(i).getString()), orvane::typeName(field),
            orvane::beginningOf(field, printedValueLength), orvane::unitText(facts.unit),
            orvane::rangeText(field, facts), orvane::toQString(facts.description)});
    }
    printTable(rows, output);
}

/// JSON has no infinite numbers: null for none.
QJsonValue limit(double number)
{
    return std::isfinite(number) ? QJsonValue(number) : QJsonValue();
}

QJsonObject jsonField(const NxFieldData& data, int index)
{
    const NxField& field = *data.getDefault(index);
    const NxFieldFacts& facts = data.getFacts(index);
    VbString value;
    field.get(value);
    return {{QStringLiteral("name"), QString::fromUtf8(data.getFieldName(index).getString())},
        {QStringLiteral("type"), orvane::typeName(field)},
        {QStringLiteral("declaredBy"), nameOf(data.getDeclaringType(index))},
        {QStringLiteral("default"), orvane::toQString(value.view())},
        {QStringLiteral("description"), orvane::toQString(facts.description)},
        {QStringLiteral("unit"), orvane::unitText(facts.unit)},
        {QStringLiteral("range"), orvane::rangeText(field, facts)},
        {QStringLiteral("hardRange"), QJsonArray{limit(facts.hardMinimum), limit(facts.hardMaximum)}},
        {QStringLiteral("excludesLimits"), QJsonArray{facts.excludesMinimum, facts.excludesMaximum}},
        {QStringLiteral("softRange"), QJsonArray{limit(facts.softMinimum), limit(facts.softMaximum)}},
        {QStringLiteral("step"), facts.step > 0 ? QJsonValue(facts.step) : QJsonValue()},
        {QStringLiteral("isFile"), facts.isFile}};
}

QString jsonClass(NxNode& node)
{
    const NxFieldData& data = *node.getFieldData();
    QJsonArray fields;
    for (int i = 0; i < data.getNumFields(); ++i)
        fields.append(jsonField(data, i));
    const QJsonObject object{{QStringLiteral("name"), nameOf(node.getTypeId())},
        {QStringLiteral("bases"), QJsonArray::fromStringList(basesOf(node.getTypeId()))},
        {QStringLiteral("description"), orvane::toQString(data.getDescription())}, {QStringLiteral("fields"), fields}};
    return orvane::jsonLine(object);
}

/// The classes whose instances can be made, by name.
QStringList classNames()
{
    QStringList names;
    for (const NxType type : NxType::getAllDerivedFrom(NxNode::getClassTypeId())) {
        if (type.canCreateInstance())
            names.append(nameOf(type));
    }
    names.sort();
    return names;
}

QString unknownClass(const QString& name, const QStringList& names)
{
    const QStringList near = orvane::nearNames(name, names);
    const QString message = QStringLiteral("There is no node class '%1'").arg(name);
    return near.isEmpty() ? message + QStringLiteral("; --describe alone lists all.")
                          : message + QStringLiteral("; did you mean %1?").arg(near.join(QStringLiteral(" or ")));
}

} // namespace

Result<ClassListing> ClassListing::of(const QStringList& names)
{
    const QStringList known = classNames();
    ClassListing listing;
    for (const QString& name : names.isEmpty() ? known : names) {
        if (!known.contains(name))
            return Failure{unknownClass(name, known)};
        const NxType type = NxType::fromName(VbName(name.toUtf8().constData()));
        listing.m_nodes.emplace_back(static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
    }
    return listing;
}

void ClassListing::print(QTextStream& output) const
{
    const char* separator = "";
    for (const NxRef<NxNode>& node : m_nodes) {
        output << separator;
        printClass(*node, output);
        separator = "\n";
    }
}

void ClassListing::printJson(QTextStream& output) const
{
    output << R"({"version":1,"classes":[)";
    const char* separator = "\n";
    for (const NxRef<NxNode>& node : m_nodes) {
        output << separator << jsonClass(*node);
        separator = ",\n";
    }
    output << "\n]}\n";
}
