#include "FieldEditors/MFWidgets/DvMFColorTableItemDelegate.h"

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"
#include "FieldEditors/MFWidgets/RowColor.h"

#include <QColor>
#include <QLineEdit>
#include <QPainter>

DvMFColorTableItemDelegate::DvMFColorTableItemDelegate(DvMFieldWidget* owner, QObject* table)
    : DvMFieldTableItemDelegate(owner, table)
{
}

DvMFColorTableItemDelegate::~DvMFColorTableItemDelegate() = default;

void DvMFColorTableItemDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (index.column() != 0) {
        DvMFieldTableItemDelegate::paint(painter, option, index);
        return;
    }
    // Neither text nor selection. A colour that isn't valid leaves the cell unpainted.
    if (const QColor color = orvane::rowColor(m_owner, index.row()); color.isValid()) {
        painter->save();
        painter->fillRect(option.rect, color);
        painter->restore();
    }
}

QWidget* DvMFColorTableItemDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return index.column() == 0 ? nullptr : DvMFieldTableItemDelegate::createEditor(parent, option, index);
}

void DvMFColorTableItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    // Contract: a line opens with the text of the cell to its left.
    if (auto* const line = qobject_cast<QLineEdit*>(editor); line != nullptr)
        line->setText(m_owner->getCellValue(index.row(), index.column() - 1));
    else
        DvMFieldTableItemDelegate::setEditorData(editor, index);
}

void DvMFColorTableItemDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (editor == nullptr)
        return;
    const QLineEdit* const line = takeLine(editor, index);
    if (line == nullptr) {
        DvMFieldTableItemDelegate::setModelData(editor, model, index);
        return;
    }
    // Contract: an untouched line is written as well, unlike in other tables, and so writes its neighbour's value.
    if (isAcceptable(line))
        m_owner->setCellValue(index.row(), index.column() - 1, line->text());
    model->setData(index, line->text(), Qt::EditRole);
}
