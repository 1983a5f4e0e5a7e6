#include "FieldEditors/SFWidgets/ColorParts.h"

#include "FieldEditors/LayoutMetrics.h"

#include <QColor>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>

namespace orvane {

QPushButton* addColorDisplay(QHBoxLayout* row, QWidget* parent)
{
    auto* const display = new QPushButton(parent);
    display->setObjectName(QStringLiteral("m_colorDisp"));
    display->setFixedHeight(getLayoutMetric(QStringLiteral("SFComponentHeight")));
    display->setFixedWidth(getLayoutMetric(QStringLiteral("SFColorDispWidth")));
    showColor(display, QColor(0, 0, 0, 255));
    setLayoutMetrics(row, QStringLiteral("SFColorMargin"), QStringLiteral("SFColorSpacing"));
    row->addWidget(display);
    return display;
}

QHBoxLayout* addColorRow(QHBoxLayout* row, QLabel* label, QLineEdit* line)
{
    const int height = getLayoutMetric(QStringLiteral("SFComponentHeight"));
    label->setFixedHeight(height);
    line->setFixedHeight(height);
    auto* const part = new QHBoxLayout;
    part->addWidget(label);
    part->addWidget(line);
    part->setSizeConstraint(QLayout::SetMinimumSize);
    row->addLayout(part);
    return part;
}

int shownComponent(float component)
{
    return wholeComponent(static_cast<double>(component * 255.0F));
}

int wholeComponent(double component)
{
    // The cast of anything else has no defined result.
    const bool isInt = component > -2147483648.0 && component < 2147483648.0;
    return isInt ? static_cast<int>(component) : -1;
}

void showColor(QPushButton* display, const QColor& color)
{
    if (!color.isValid())
        return;
    QPixmap pixmap(display->rect().size());
    pixmap.fill(color);
    display->setIcon(pixmap);
}

} // namespace orvane
