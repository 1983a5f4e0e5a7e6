#include "FieldEditors/IconButton.h"

#include "FieldEditors/LayoutMetrics.h"

#include <QPixmap>
#include <QPushButton>

QPushButton* orvane::makeIconButton(QWidget* parent, const QString& name, const QPixmap& icon)
{
    auto* const button = new QPushButton(parent);
    button->setObjectName(name);
    button->setMaximumSize(
        getLayoutMetric(QStringLiteral("buttonWidth")), getLayoutMetric(QStringLiteral("buttonHeight")));
    button->setIcon(icon);
    return button;
}
