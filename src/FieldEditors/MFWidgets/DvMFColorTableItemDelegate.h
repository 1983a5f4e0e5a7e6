#pragma once

#include "FieldEditors/MFWidgets/DvMFieldTableItemDelegate.h"

/// Fills the first column with each row's colour; the cells beside it hold the components.
class DvMFColorTableItemDelegate final : public DvMFieldTableItemDelegate {
public:
    DvMFColorTableItemDelegate(DvMFieldWidget* owner, QObject* table);
    ~DvMFColorTableItemDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Makes none for the first column.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};
