#include "orvane/app/look/ReadablePalette.h"

#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QScopedValueRollback>

ReadablePalette::ReadablePalette(QObject* application)
    : QObject(application)
{
    application->installEventFilter(this);
    mend();
}

bool ReadablePalette::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && object == parent())
        mend();
    return false;
}

void ReadablePalette::mend()
{
    if (m_isMending)
        return;
    const QScopedValueRollback mending(m_isMending, true);
    const QPalette present = QApplication::palette();
    const QColor base = present.color(QPalette::Base);
    // The colour of the text with less opacity, in most palettes.
    const QColor placeholder = present.color(QPalette::PlaceholderText);
    const QColor seen = orvane::look::mixed(base, placeholder, static_cast<double>(placeholder.alphaF()));
    if (orvane::look::contrast(seen, base) >= orvane::look::markContrast)
        return;
    QPalette mended; // only what is set here
    mended.setColor(QPalette::PlaceholderText, orvane::look::quietColor(present.color(QPalette::Text), base));
    QApplication::setPalette(mended);
}
