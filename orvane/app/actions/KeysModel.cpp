#include "orvane/app/actions/KeysModel.h"

#include "orvane/app/actions/ActionKeys.h"
#include "orvane/app/actions/FixedKeys.h"
#include "orvane/app/base/LetterMatch.h"
#include "orvane/app/base/PlainText.h"

#include <QFont>
#include <QKeySequence>
#include <QMainWindow>

#include <algorithm>

KeysModel::KeysModel(const QMainWindow& window, ActionKeys& keys, QObject* parent)
    : QAbstractTableModel(parent)
    , m_keys(keys)
{
    for (const ListedAction& listed : orvane::listedActions(window))
        m_all.append({listed.name, listed.text, listed.place, {}, listed.action->statusTip()});
    for (const orvane::FixedKey& fixed : orvane::fixedKeys())
        m_all.append({{}, fixed.text, fixed.place, fixed.keys, {}});
    setFilter({});
    connect(&keys, &ActionKeys::changed, this, &KeysModel::update);
}

void KeysModel::setFilter(const QString& text)
{
    const orvane::LetterMatch letters(text);
    beginResetModel();
    m_shown.clear();
    for (qsizetype i = 0; i < m_all.size(); ++i) {
        const Row& row = m_all.at(i);
        const bool hasKeys = keysOf(row).contains(text.trimmed(), Qt::CaseInsensitive);
        if (hasKeys || letters.score(row.text) || letters.score(row.place + u' ' + row.text))
            m_shown.append(static_cast<int>(i));
    }
    endResetModel();
}

QString KeysModel::name(const QModelIndex& index) const
{
    return index.isValid() ? m_all.at(m_shown.at(index.row())).name : QString();
}

QString KeysModel::text(const QString& name) const
{
    const auto found = std::find_if(m_all.begin(), m_all.end(), [&name](const Row& row) { return row.name == name; });
    return found == m_all.end() ? name : found->text;
}

QModelIndex KeysModel::indexOf(const QString& name) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (m_all.at(m_shown.at(row)).name == name)
            return index(row, ActionColumn);
    }
    return {};
}

int KeysModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int KeysModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString KeysModel::keysOf(const Row& row) const
{
    return row.name.isEmpty() ? row.fixedKeys
                              : QKeySequence::listToString(m_keys.keys(row.name), QKeySequence::NativeText);
}

QString KeysModel::stateOf(const Row& row) const
{
    if (row.name.isEmpty())
        return tr("fixed");
    return m_keys.isChanged(row.name) ? tr("changed") : QString();
}

QVariant KeysModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Row& row = m_all.at(m_shown.at(index.row()));
    if (role == Qt::ToolTipRole)
        return orvane::plainToolTip(row.name.isEmpty() ? tr("This key can't be changed.") : row.statusTip);
    if (role == Qt::FontRole && !row.name.isEmpty() && m_keys.isChanged(row.name)) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case ActionColumn:
        return row.text;
    case PlaceColumn:
        return row.place;
    case KeysColumn:
        return keysOf(row);
    case StateColumn:
        return stateOf(row);
    default:
        return {};
    }
}

QVariant KeysModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case ActionColumn:
        return tr("Action");
    case PlaceColumn:
        return tr("Place");
    case KeysColumn:
        return tr("Keys");
    default:
        return tr("State");
    }
}

void KeysModel::update()
{
    if (!m_shown.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}
