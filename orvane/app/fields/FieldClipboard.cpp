#include "orvane/app/fields/FieldClipboard.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/fields/values/PastedValue.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/single/NxSFString.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <QMimeData>
#include <QStringList>
#include <QTextDocumentFragment>

#include <algorithm>

namespace orvane {

namespace {

constexpr quint32 formatVersion = 1;
const QString ignoredWord = QStringLiteral("ignored ");

struct FieldClipboardTexts {
    Q_DECLARE_TR_FUNCTIONS(FieldClipboard)
};

ClipboardField clipboardField(const NxField& field)
{
    VbString text;
    field.get(text);
    const NxFieldContainer* const node = field.getContainer();
    return {toQString(node->getFieldName(&field)), typeName(field), std::string(text.view()), field.isIgnored()};
}

std::unique_ptr<QMimeData> mimeData(const std::vector<ClipboardField>& fields, const QString& plain)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << formatVersion << static_cast<quint32>(fields.size());
    for (const ClipboardField& field : fields)
        stream << field.name << field.type << QByteArray::fromStdString(field.text) << field.isIgnored;
    auto data = std::make_unique<QMimeData>();
    data->setText(plain);
    data->setData(fieldMimeType(), bytes);
    return data;
}

std::vector<ClipboardField> ownFields(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    quint32 version = 0;
    quint32 count = 0;
    stream >> version >> count;
    std::vector<ClipboardField> fields;
    for (quint32 i = 0; version == formatVersion && i < count && stream.status() == QDataStream::Ok; ++i) {
        ClipboardField field;
        QByteArray text;
        stream >> field.name >> field.type >> text >> field.isIgnored;
        field.text = text.toStdString();
        fields.push_back(std::move(field));
    }
    return stream.status() == QDataStream::Ok ? fields : std::vector<ClipboardField>();
}

/// The plain text, also of a program that offers formatted text alone.
QString plainText(const QMimeData& data)
{
    if (data.hasText())
        return data.text();
    return data.hasHtml() ? QTextDocumentFragment::fromHtml(data.html()).toPlainText() : QString();
}

std::vector<ClipboardField> linesOf(const QString& text)
{
    std::vector<ClipboardField> fields;
    for (const QStringView line : QStringView(text).split(u'\n', Qt::SkipEmptyParts)) {
        const qsizetype sign = line.indexOf(u'=');
        QString name = line.left(std::max<qsizetype>(sign, 0)).trimmed().toString();
        const bool isIgnored = name.startsWith(ignoredWord);
        if (isIgnored)
            name = name.mid(ignoredWord.size()).trimmed();
        if (sign < 0 || name.isEmpty() || name.contains(u' '))
            return {}; // it isn't a text of fields
        fields.push_back({name, QString(), line.mid(sign + 1).trimmed().toString().toStdString(), isIgnored});
    }
    return fields;
}

bool isOf(const ClipboardField& field, const FieldSet& row)
{
    const NxField& first = row.first();
    return field.name == toQString(first.getContainer()->getFieldName(&first))
        && (field.type.isEmpty() || field.type == typeName(first));
}

} // namespace

QString fieldMimeType()
{
    return QStringLiteral("application/x-orvane-fields");
}

std::unique_ptr<QMimeData> valueMimeData(const NxField& field)
{
    const ClipboardField copied = clipboardField(field);
    const auto* const string = dynamic_cast<const NxSFString*>(&field);
    return mimeData({copied}, toQString(string != nullptr ? string->getValue().view() : copied.text));
}

std::unique_ptr<QMimeData> fieldsMimeData(std::span<const NxField* const> fields)
{
    std::vector<ClipboardField> copied;
    QString lines;
    for (const NxField* const field : fields) {
        copied.push_back(clipboardField(*field));
        const ClipboardField& last = copied.back();
        lines += (last.isIgnored ? ignoredWord : QString()) + last.name + QStringLiteral(" = ") + toQString(last.text)
            + u'\n';
    }
    return mimeData(copied, lines);
}

std::vector<ClipboardField> clipboardFields(const QMimeData& data)
{
    return data.hasFormat(fieldMimeType()) ? ownFields(data.data(fieldMimeType())) : linesOf(plainText(data));
}

Result<> pasteValue(FieldWriter& writer, const FieldSet& fields, const QMimeData& data)
{
    if (fields.isEmpty())
        return Failure{FieldClipboardTexts::tr("Choose the field to paste to.")};
    const std::vector<ClipboardField> own
        = data.hasFormat(fieldMimeType()) ? ownFields(data.data(fieldMimeType())) : std::vector<ClipboardField>();
    if (own.size() > 1) {
        return Failure{FieldClipboardTexts::tr(
            "The clipboard has %1 fields, not one value. Paste All Fields sets those that the node has.")
                           .arg(own.size())};
    }
    if (own.size() == 1 && own.front().type == typeName(fields.first()))
        return writer.setText(fields, toQString(own.front().text));
    const QString text = plainText(data);
    if (text.isEmpty() && own.empty())
        return Failure{FieldClipboardTexts::tr("The clipboard has no text.")};
    const auto value = pastedValue(fields.first(), text);
    if (value)
        return writer.setText(fields, toQString(value.value()));
    if (own.empty())
        return Failure{value.error()};
    return Failure{FieldClipboardTexts::tr("The clipboard has the value of %1, a field of type %2. %3")
                       .arg(own.front().name, own.front().type, value.error())};
}

Result<QString> pasteFields(
    FieldWriter& writer, std::span<const FieldSet> rows, const QMimeData& data, const QString& nodes)
{
    const std::vector<ClipboardField> copied = clipboardFields(data);
    if (copied.empty())
        return Failure{FieldClipboardTexts::tr("The clipboard has no fields. Copy All Fields copies those of a node.")};
    std::vector<FieldWriter::Item> items;
    QStringList missing;
    for (const ClipboardField& field : copied) {
        const auto row
            = std::ranges::find_if(rows, [&field](const FieldSet& set) { return !set.isEmpty() && isOf(field, set); });
        if (row != rows.end())
            items.push_back({*row, field.text, field.isIgnored});
        else
            missing += field.name;
    }
    if (items.empty())
        return Failure{FieldClipboardTexts::tr("None of the fields on the clipboard is a field of %1.").arg(nodes)};
    if (const auto result
        = writer.setAll(items, FieldClipboardTexts::tr("Paste %1 fields to %2").arg(items.size()).arg(nodes));
        !result)
        return Failure{result.error()};
    if (missing.isEmpty())
        return QString();
    return FieldClipboardTexts::tr("%1 fields were pasted. %2 has no field %3.")
        .arg(items.size())
        .arg(nodes, shortLine(missing.join(QStringLiteral(", "))));
}

} // namespace orvane
