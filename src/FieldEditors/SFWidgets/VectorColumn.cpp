#include "FieldEditors/SFWidgets/VectorColumn.h"

#include "FieldEditors/DvSlider.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/LayoutMetrics.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace orvane {

QVBoxLayout* addVectorColumn(QHBoxLayout* row, QLabel* label, QWidget* control)
{
    label->setFixedHeight(getLayoutMetric(QStringLiteral("SFVecLabelHeight")));
    control->setFixedHeight(getLayoutMetric(QStringLiteral("SFVecLineHeight")));
    auto* const column = new QVBoxLayout;
    column->addWidget(label);
    column->addWidget(control);
    column->setSizeConstraint(QLayout::SetMinimumSize);
    row->addLayout(column);
    return column;
}

void pushVectorCommand(NxField* field, QFrame* editionFrame)
{
    VbString snapshot;
    if (auto* const slider = dynamic_cast<DvSlider*>(editionFrame); slider != nullptr)
        snapshot = slider->commandValue();
    pushSetValueCommand(field, snapshot);
}

} // namespace orvane
