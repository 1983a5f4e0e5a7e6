#include "orvane/app/tree/SelectionLabel.h"

#include "orvane/app/base/PlainText.h"

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
    constexpr qsizetype mostCharacters = 2000;
    m_path = orvane::shortLine(path, mostCharacters);
    setToolTip(orvane::plainToolTip(m_path));
    setAccessibleName(m_path);
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
