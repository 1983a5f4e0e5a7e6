#include "orvane/app/manners/PaneFrame.h"

#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

PaneFrame::PaneFrame(QWidget* pane)
    : QWidget(pane)
{
    setObjectName(QStringLiteral("paneFrame"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(pane->rect());
    QCoreApplication::instance()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget* /*old*/, const QWidget* now) { focusMoved(now); });
    raise();
    show();
}

PaneFrame::~PaneFrame() = default;

bool PaneFrame::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        deleteLater();
    else if (event->type() == QEvent::Resize && object == parent())
        setGeometry(parentWidget()->rect());
    return false;
}

void PaneFrame::focusMoved(const QWidget* focus)
{
    if (focus != nullptr && !parentWidget()->isAncestorOf(focus))
        deleteLater();
}

void PaneFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const int width = std::max(2, orvane::look::unit(fontMetrics()) / 2);
    painter.setPen(QPen(palette().color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const int inset = width / 2;
    painter.drawRect(rect().adjusted(inset, inset, -inset - width % 2, -inset - width % 2));
}
