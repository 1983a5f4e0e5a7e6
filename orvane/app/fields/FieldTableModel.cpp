#include "orvane/app/fields/FieldTableModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldSensor.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

namespace {

constexpr int toolTipCharacters = 1000;

QString fieldName(const NxFieldContainer& node, const NxField& field)
{
    return QString::fromLatin1(node.getFieldName(&field).getString());
}

QString fieldToolTip(const NxField& field)
{
    QString text = FieldTableModel::tr("Type: %1").arg(orvane::typeName(field));
    text += u'\n' + FieldTableModel::tr("Value: %1").arg(orvane::beginningOf(field, toolTipCharacters));
    if (field.isDefault())
        text += u'\n' + FieldTableModel::tr("This is the default.");
    if (field.isIgnored())
        text += u'\n' + FieldTableModel::tr("Ignored: the scene takes no notice of this value.");
    return orvane::plainToolTip(text);
}

/// Ignored rows have a struck-out name; values that aren't the default are bold.
QFont rowFont(bool ignored, bool differs, int column)
{
    QFont font;
    font.setStrikeOut(ignored && column == FieldTableModel::NameColumn);
    font.setBold(differs && column != FieldTableModel::TypeColumn);
    return font;
}

QVariant rowColor(bool ignored, int column)
{
    if (!ignored && column != FieldTableModel::TypeColumn)
        return {};
    return QGuiApplication::palette().color(QPalette::PlaceholderText);
}

QString cut(const std::string& text, int length)
{
    const QString whole
        = orvane::toQString(std::string_view(text).substr(0, 4 * (static_cast<std::size_t>(length) + 1)));
    return whole.size() <= length ? whole : whole.left(length) + QChar(0x2026);
}

} // namespace

struct FieldTableModel::Row {
    Row(FieldTableModel* owner, NxField* shown, int place)
        : model(owner)
        , field(shown)
        , number(place)
        , sensor(
              [](void* data, NxSensor*) {
                  auto* row = static_cast<Row*>(data);
                  row->model->updateRow(*row);
              },
              this)
    {
        sensor.attach(shown);
    }

    FieldTableModel* model;
    NxField* field;
    int number;
    QString text; // the value as it is shown; null when it has to be made
    NxFieldSensor sensor;
};

FieldTableModel::FieldTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

FieldTableModel::~FieldTableModel() = default;

void FieldTableModel::setNode(NxFieldContainer* node)
{
    beginResetModel();
    m_rows.clear();
    m_node = NxRef<NxFieldContainer>(node);
    if (node != nullptr) {
        for (NxField* field : node->getFields())
            m_rows.push_back(std::make_unique<Row>(this, field, static_cast<int>(m_rows.size())));
    }
    endResetModel();
}

NxField* FieldTableModel::field(const QModelIndex& index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < m_rows.size() ? m_rows[row]->field : nullptr;
}

QModelIndex FieldTableModel::indexOf(const NxField* field) const
{
    for (const std::unique_ptr<Row>& row : m_rows) {
        if (row->field == field)
            return index(row->number, NameColumn);
    }
    return {};
}

int FieldTableModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || !m_node)
        return 0;
    return static_cast<int>(m_rows.size() + m_node->getUnknownFields().size());
}

int FieldTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant FieldTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    if (row < m_rows.size())
        return fieldData(*m_rows[row], index.column(), role);
    return unknownData(m_node->getUnknownFields()[row - m_rows.size()], index.column(), role);
}

QVariant FieldTableModel::fieldData(Row& row, int column, int role) const
{
    const NxField& field = *row.field;
    switch (role) {
    case Qt::DisplayRole:
        if (column == NameColumn)
            return fieldName(*m_node, field);
        if (column == TypeColumn)
            return orvane::typeName(field);
        if (row.text.isNull())
            row.text = orvane::oneLine(orvane::beginningOf(field, shownCharacters));
        return row.text;
    case Qt::FontRole:
        return rowFont(field.isIgnored(), !field.isDefault(), column);
    case Qt::ForegroundRole:
        return rowColor(field.isIgnored(), column);
    case Qt::ToolTipRole:
        return fieldToolTip(field);
    default:
        return {};
    }
}

QVariant FieldTableModel::unknownData(const NxFieldContainer::UnknownField& field, int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        if (column == NameColumn)
            return orvane::shortLine(orvane::toQString(field.name));
        return column == TypeColumn ? tr("unknown") : orvane::oneLine(cut(field.text, shownCharacters));
    case Qt::FontRole:
        return rowFont(field.ignored, true, column);
    case Qt::ForegroundRole:
        return rowColor(true, column);
    case Qt::ToolTipRole:
        return tr("The class of this node has no such field. It is kept and written back as it was.");
    default:
        return {};
    }
}

QVariant FieldTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Field");
    case TypeColumn:
        return tr("Type");
    default:
        return tr("Value");
    }
}

Qt::ItemFlags FieldTableModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

void FieldTableModel::updateRow(Row& row)
{
    row.text = QString();
    Q_EMIT dataChanged(index(row.number, NameColumn), index(row.number, ValueColumn));
}
