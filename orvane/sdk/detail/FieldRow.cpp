#include "orvane/sdk/detail/FieldRow.h"

#include "orvane/sdk/Edit.h"
#include "orvane/sdk/Selected.h"
#include "orvane/sdk/detail/WidgetTexts.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"
#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFImage.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

namespace orv {

namespace {

struct RowTexts {
    Q_DECLARE_TR_FUNCTIONS(FieldRow)
};

QColor shownColor(const VbColor& color)
{
    const auto part = [&](std::size_t i) { return std::clamp(color[i], 0.0F, 1.0F); };
    return QColor::fromRgbF(part(0), part(1), part(2));
}

QString summaryOf(const NxField& field)
{
    if (field.isOfType(NxMField::getClassTypeId())) {
        const int count = static_cast<const NxMField&>(field).getNum();
        return count == 1 ? RowTexts::tr("1 value") : RowTexts::tr("%1 values").arg(count);
    }
    return RowTexts::tr("%1 bytes").arg(field.valueBytes());
}

} // namespace

FieldRow::FieldRow(NxField& example)
    : m_label(makeLabel(example))
    , m_control(makeControl(example))
{
    m_control->setObjectName(m_name);
}

QToolButton* FieldRow::makeLabel(NxField& example)
{
    NxFieldContainer& node = *example.getContainer();
    m_name = toQString(node.getFieldName(&example));
    const NxFieldFacts& facts = meridane::factsOf(example);
    const auto latin
        = [](std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); };
    const QString symbol = latin(meridane::symbolOf(facts.unit));
    auto* const button = new QToolButton;
    button->setObjectName(m_name + QStringLiteral("Label"));
    button->setAutoRaise(true);
    button->setText(symbol.isEmpty() ? m_name : QStringLiteral("%1 (%2)").arg(m_name, symbol));
    setWidgetTexts(*button, [button, description = latin(facts.description)] {
        const QString hint = RowTexts::tr("Click to show the field's own editor.");
        button->setToolTip(description.isEmpty() ? hint : description + u'\n' + hint);
    });
    QObject::connect(button, &QToolButton::clicked, &m_field.context(), [this] {
        if (NxField* const field = m_field.field())
            select(*field);
    });
    return button;
}

QWidget* FieldRow::makeControl(NxField& example)
{
    if (example.isOfType(NxSFBool::getClassTypeId()))
        return makeFlag();
    if (example.isOfType(NxSFEnum::getClassTypeId()) && !example.isOfType(NxSFBitMask::getClassTypeId()))
        return makeChoice(example);
    if (example.isOfType(NxSFColor::getClassTypeId()))
        return makeColor();
    if (example.isOfType(NxMField::getClassTypeId()) || example.isOfType(NxSFImage::getClassTypeId()))
        return makeSummary();
    return makeLine();
}

QWidget* FieldRow::makeFlag()
{
    auto* const box = new QCheckBox;
    m_field.addWidget(*box, [this, box] { box->setChecked(static_cast<NxSFBool*>(m_field.field())->getValue()); });
    QObject::connect(box, &QCheckBox::clicked, &m_field.context(), [this](bool checked) {
        if (NxField* const field = m_field.field())
            edit(static_cast<NxSFBool&>(*field), checked);
    });
    return box;
}

QWidget* FieldRow::makeChoice(NxField& example)
{
    auto* const choice = new QComboBox;
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    static_cast<NxSFEnum&>(example).getEnums(count, values, names);
    for (int i = 0; i < count; ++i)
        choice->addItem(toQString(names[i]), values[i]);
    // A value without a name shows as no choice.
    m_field.addWidget(*choice, [this, choice] {
        choice->setCurrentIndex(choice->findData(static_cast<NxSFEnum*>(m_field.field())->getValue()));
    });
    QObject::connect(choice, &QComboBox::activated, &m_field.context(), [this, choice](int index) {
        if (NxField* const field = m_field.field())
            edit(static_cast<NxSFEnum&>(*field), choice->itemData(index).toInt());
    });
    return choice;
}

QWidget* FieldRow::makeColor()
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const button = new QToolButton;
    button->setObjectName(QStringLiteral("colorButton"));
    setWidgetTexts(*button, [button] {
        button->setToolTip(RowTexts::tr("Choose a colour"));
        button->setAccessibleName(button->toolTip());
    });
    m_field.addWidget(*button, [this, button] {
        QPixmap swatch(button->iconSize());
        swatch.fill(shownColor(static_cast<NxSFColor*>(m_field.field())->getValue()));
        button->setIcon(swatch);
    });
    QObject::connect(button, &QToolButton::clicked, &m_field.context(), [this, button] { chooseColor(*button); });
    layout->addWidget(button);
    layout->addWidget(makeLine(), 1);
    return row;
}

void FieldRow::chooseColor(QWidget& button)
{
    const NxField* const field = m_field.field();
    if (field == nullptr)
        return;
    auto* const dialog
        = new QColorDialog(shownColor(static_cast<const NxSFColor*>(field)->getValue()), button.window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QColorDialog::colorSelected, &m_field.context(), [this, field](const QColor& color) {
        // Another field may have been attached meanwhile.
        if (NxField* const now = m_field.field(); now == field)
            edit(static_cast<NxSFColor&>(*now), VbColor(color.redF(), color.greenF(), color.blueF()));
    });
    dialog->open();
}

QWidget* FieldRow::makeSummary()
{
    auto* const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    m_field.addWidget(*label, [this, label] { label->setText(summaryOf(*m_field.field())); });
    return label;
}

QLineEdit* FieldRow::makeLine()
{
    auto* const line = new QLineEdit;
    line->setObjectName(QStringLiteral("line"));
    m_field.addWidget(*line, [this, line] {
        // What is being typed isn't lost by a change from elsewhere.
        if (line->isModified() && line->hasFocus())
            return;
        line->setText(FieldValue<NxField>::read(*m_field.field()));
        line->setCursorPosition(0);
    });
    QObject::connect(line, &QLineEdit::editingFinished, &m_field.context(), [this, line] { writeLine(*line); });
    return line;
}

void FieldRow::writeLine(QLineEdit& line)
{
    NxField* const field = m_field.field();
    if (field == nullptr || !line.isModified())
        return;
    line.setModified(false);
    const QString text = line.text();
    if (!editText(*field, text)) {
        const QString type = toQString(field->getTypeId().getName());
        QToolTip::showText(line.mapToGlobal(QPoint(0, line.height())),
            RowTexts::tr("\"%1\" isn't the text of a value of the type %2; the former value stays.").arg(text, type),
            &line);
    }
    m_field.refresh();
}

} // namespace orv
