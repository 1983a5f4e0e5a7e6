#include "FieldEditors/SFWidgets/EditLine.h"

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

} // namespace orvane
