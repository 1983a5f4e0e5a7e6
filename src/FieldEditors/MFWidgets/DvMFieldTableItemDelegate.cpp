#include "FieldEditors/MFWidgets/DvMFieldTableItemDelegate.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvUIntSlider.h"
#include "FieldEditors/MFWidgets/CellText.h"
#include "FieldEditors/MFWidgets/DvMFieldWidget.h"
#include "FieldEditors/MFWidgets/QUIntValidator.h"
#include "FieldEditors/MFWidgets/QULongValidator.h"

#include <QApplication>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QPainter>
#include <QTableWidget>

#include <limits>

using orvane::CellKind;
using orvane::IntegerKind;
using orvane::kindNumber;

DvMFieldTableItemDelegate::DvMFieldTableItemDelegate(DvMFieldWidget* owner, QObject* table)
    : QItemDelegate(table)
    , m_owner(owner)
{
}

DvMFieldTableItemDelegate::~DvMFieldTableItemDelegate() = default;

void DvMFieldTableItemDelegate::setRealRange(double min, double max)
{
    m_realMin = min;
    m_realMax = max;
}

void DvMFieldTableItemDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    paintText(painter, option, m_owner->getCellValue(index.row(), index.column()));
}

void DvMFieldTableItemDelegate::paintText(QPainter* painter, const QStyleOptionViewItem& option, const QString& text)
{
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected))
        painter->fillRect(option.rect, option.palette.brush(QPalette::Current, QPalette::Highlight));
    // Contract: centred in every table, and in the same pen when the cell is selected.
    painter->drawText(
        option.rect, Qt::AlignCenter, orvane::fittingText(text, painter->fontMetrics(), option.rect.width() - 4));
    painter->restore();
}

QWidget* DvMFieldTableItemDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const
{
    const QString text = m_owner->getCellValue(index.row(), index.column());
    QWidget* editor = nullptr;
    if (index.column() == 0 && index.model()->columnCount() == 1)
        editor = makeSlider(parent, index.row(), text);
    if (editor == nullptr)
        editor = makeLine(parent, text);
    editor->setFocusPolicy(Qt::StrongFocus);
    return editor;
}

QWidget* DvMFieldTableItemDelegate::makeLine(QWidget* parent, const QString& text) const
{
    auto* const line = new QLineEdit(parent);
    line->setObjectName(QStringLiteral("qt_lineeditor"));
    line->setFrame(false);
    line->setMaxLength(std::numeric_limits<int>::max()); // a text that is cut here would be cut in the field
    line->setText(text);
    installValidator(line);
    return line;
}

QWidget* DvMFieldTableItemDelegate::makeSlider(QWidget* parent, int row, const QString& text) const
{
    constexpr int mode = DvSlider::TableCell;
    switch (valueKind()) {
    case CellKind::Int16:
    case CellKind::Int32: {
        const auto kind = valueKind() == CellKind::Int16 ? IntegerKind::Int16 : IntegerKind::Int32;
        auto* const slider = new DvIntSlider(kindNumber(kind), mode, m_owner, parent, row, 0);
        slider->setRange(m_intMin, m_intMax, m_bounded);
        slider->setValueText(text);
        return slider;
    }
    case CellKind::UInt16:
    case CellKind::UInt32: {
        const auto kind = valueKind() == CellKind::UInt16 ? IntegerKind::UInt16 : IntegerKind::UInt32;
        auto* const slider = new DvUIntSlider(kindNumber(kind), mode, m_owner, parent, row, 0);
        slider->setRange(static_cast<unsigned>(m_intMin), static_cast<unsigned>(m_intMax), m_bounded);
        slider->setValueText(text);
        return slider;
    }
    case CellKind::Float: {
        // Contract: the first row gets a slider of double precision, and every row's slider writes the first value of
        // the field. The row is passed as the precision, and the cell as row 0, column 1.
        auto* const slider = new DvRealSlider(mode, m_owner, parent, row != 0, 0, 1);
        slider->setRange(m_realMin, m_realMax, m_bounded);
        slider->setValue(static_cast<double>(text.toFloat()));
        return slider;
    }
    default:
        return nullptr;
    }
}

void DvMFieldTableItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString text = m_owner->getCellValue(index.row(), index.column());
    if (auto* const line = qobject_cast<QLineEdit*>(editor)) {
        line->setText(text);
        return;
    }
    switch (valueKind()) {
    case CellKind::Int16:
    case CellKind::UInt16:
    case CellKind::Int32:
    case CellKind::UInt32:
        static_cast<DvSlider*>(editor)->setValueText(text);
        break;
    case CellKind::Float:
        static_cast<DvRealSlider*>(editor)->setValue(static_cast<double>(text.toFloat()));
        break;
    default:
        break;
    }
}

QLineEdit* DvMFieldTableItemDelegate::takeLine(QWidget* editor, const QModelIndex& index) const
{
    auto* const table = static_cast<QTableWidget*>(parent());
    const bool hadFocus = editor->hasFocus() || editor->isAncestorOf(QApplication::focusWidget());
    table->setCellWidget(index.row(), index.column(), nullptr);
    if (hadFocus && table->isVisible())
        table->setFocus(); // the event loop deletes the editor later, and until then it would get the keys
    return qobject_cast<QLineEdit*>(editor);
}

bool DvMFieldTableItemDelegate::isAcceptable(const QLineEdit* line)
{
    QString text = line->text();
    int position = 0;
    const QValidator* const validator = line->validator();
    return validator == nullptr || validator->validate(text, position) == QValidator::Acceptable;
}

void DvMFieldTableItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (editor == nullptr)
        return;
    const QLineEdit* const line = takeLine(editor, index);
    if (line == nullptr) {
        QItemDelegate::setModelData(editor, model, index);
        return;
    }
    if (!line->isModified())
        return;
    if (isAcceptable(line))
        m_owner->setCellValue(index.row(), index.column(), line->text());
    // Contract: a text that the validator holds back is kept in the item only, which is never shown.
    model->setData(index, line->text(), Qt::DisplayRole);
}

void DvMFieldTableItemDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

void DvMFieldTableItemDelegate::installValidator(QLineEdit* edit) const
{
    using Short = std::numeric_limits<short>;
    using Int = std::numeric_limits<int>;
    constexpr auto floatLimit = static_cast<double>(std::numeric_limits<float>::max());
    switch (valueKind()) {
    case CellKind::Int16:
        edit->setValidator(
            new QIntValidator(-Short::max(), Short::max(), edit)); // Contract: one short of the lowest number.
        break;
    case CellKind::UInt16:
        edit->setValidator(new QIntValidator(0, std::numeric_limits<unsigned short>::max(), edit));
        break;
    case CellKind::AnyInt32:
        edit->setValidator(new QIntValidator(edit));
        break;
    case CellKind::AnyUInt32:
        edit->setValidator(new QUIntValidator(0, std::numeric_limits<unsigned>::max(), edit));
        break;
    case CellKind::Int32:
        edit->setValidator(
            new QIntValidator(-Int::max(), Int::max(), edit)); // Contract: one short of the lowest number.
        break;
    case CellKind::UInt32:
        edit->setValidator(new QULongValidator(0, std::numeric_limits<unsigned>::max(), edit));
        break;
    case CellKind::Float:
        edit->setValidator(new QDoubleValidator(-floatLimit, floatLimit, 6, edit));
        break;
    case CellKind::Double:
        edit->setValidator(new QDoubleValidator(edit));
        break;
    default:
        break;
    }
}
