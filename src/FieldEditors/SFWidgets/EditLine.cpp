#include "FieldEditors/SFWidgets/EditLine.h"

#include "FieldEditors/FieldChanges.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/single/NxSFString.h"

#include <QHBoxLayout>
#include <QLineEdit>

namespace orvane {

QLineEdit* addEditLine(QWidget& area, QHBoxLayout& layout)
{
    auto* const line = new QLineEdit(&area);
    line->setObjectName(QStringLiteral("lineEdit"));
    line->setAlignment(Qt::AlignLeft);
    layout.addWidget(line, 1);
    return line;
}

void showString(QLineEdit* line, NxField* field, const NxType& type)
{
    VbString text;
    if (field != nullptr) {
        if (field->isOfType(type))
            text = static_cast<NxSFString*>(field)->getValue();
        else
            field->get(text);
    }
    line->setText(toQString(text));
}

void applyString(const QLineEdit* line, NxField* field, const NxType& type)
{
    if (field == nullptr)
        return;
    const VbString text = toVbString(line->text());
    if (field->isOfType(type))
        static_cast<NxSFString*>(field)->setValue(text);
    else
        field->set(text);
    pushSetValueCommand(field);
}

} // namespace orvane
