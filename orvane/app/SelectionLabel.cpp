#include "orvane/app/SelectionLabel.h"

#include <QPainter>
#include <QStyle>

SelectionLabel::SelectionLabel(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("selectionPath"));
    setContentsMargins(6, 0, 6, 0);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void SelectionLabel::setPath(const QString& path)
{
    m_path = path;
    setToolTip(path);
    setAccessibleName(path);
    update();
}

QSize SelectionLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void SelectionLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString text = fontMetrics().elidedText(m_path, Qt::ElideMiddle, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft), palette(),
        isEnabled(), text, foregroundRole());
}
