#include "FieldEditors/MFWidgets/DvMFColorTable.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFColorTableItemDelegate.h"
#include "FieldEditors/MFWidgets/DvMFieldWidget.h"
#include "FieldEditors/MFWidgets/RowColor.h"

#include "meridane/base/values/VbVec.h"

#include <QColorDialog>

namespace {

float floatComponent(int component)
{
    return static_cast<float>(component / 255.0);
}

} // namespace

DvMFColorTable::DvMFColorTable(DvMFieldWidget* editor, QWidget* parent, const char* name)
    : DvMFieldTable(editor, parent, name)
{
    delete m_delegate;
    m_delegate = new DvMFColorTableItemDelegate(editor, this);
    setItemDelegate(m_delegate);
    setValueKind(orvane::kindNumber(orvane::CellKind::Float));
    setRealRange(0.0, 1.0);
    connect(this, &QTableWidget::cellClicked, this, &DvMFColorTable::getColorFromEditor);
}

void DvMFColorTable::getColorFromEditor(int row, int col)
{
    if (col != 0)
        return;
    const QColorDialog::ColorDialogOptions options
        = orvane::hasOpacity(m_owner, row) ? QColorDialog::ShowAlphaChannel : QColorDialog::ColorDialogOptions();
    const QColor chosen
        = QColorDialog::getColor(orvane::rowColor(m_owner, row), this, QStringLiteral("color dialog"), options);
    if (!chosen.isValid())
        return;
    VbVec4f value;
    value.setValue(floatComponent(chosen.red()), floatComponent(chosen.green()), floatComponent(chosen.blue()),
        floatComponent(chosen.alpha()));
    m_owner->setRowColor(row, value);
}
