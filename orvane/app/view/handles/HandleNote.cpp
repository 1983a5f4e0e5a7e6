#include "orvane/app/view/handles/HandleNote.h"

#include "orvane/app/look/Look.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

HandleNote::HandleNote(QWidget* view)
    : QFrame(view)
    , m_text(new QLabel(this))
    , m_offer(new QPushButton(this))
{
    setObjectName(QStringLiteral("handleNote"));
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_offer->setObjectName(QStringLiteral("handleOffer"));
    m_offer->setFocusPolicy(Qt::TabFocus);
    const int unit = orvane::look::unit(fontMetrics());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    layout->setSpacing(2 * unit);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_offer);
    connect(m_offer, &QPushButton::clicked, this, &HandleNote::accepted);
    view->installEventFilter(this);
    hide();
}

void HandleNote::showText(const QString& text, const QString& offer)
{
    m_text->setText(text);
    m_offer->setText(offer);
    m_offer->setVisible(!offer.isEmpty());
    setVisible(!text.isEmpty());
    if (!text.isEmpty())
        place();
}

void HandleNote::place()
{
    const int margin = 2 * orvane::look::unit(fontMetrics());
    const QRect area = parentWidget()->rect().adjusted(margin, margin, -margin, -margin);
    const int textWidth = fontMetrics().horizontalAdvance(m_text->text()) + 8 * margin
        + (m_offer->isHidden() ? 0 : m_offer->sizeHint().width());
    const int width = std::max(0, std::min(textWidth, area.width()));
    const int height = std::max(layout()->heightForWidth(width), layout()->sizeHint().height());
    setGeometry(area.center().x() - width / 2, area.bottom() - height + 1, width, height);
}

bool HandleNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QFrame::eventFilter(watched, event);
}
