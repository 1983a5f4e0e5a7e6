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
    const QColor text = present.color(QPalette::Text);
    QPalette mended; // only what is set here
    bool isMended = false;
    // The colour of the text with less opacity, in most palettes.
    const QColor placeholder = present.color(QPalette::PlaceholderText);
    const QColor seen = orvane::look::mixed(base, placeholder, static_cast<double>(placeholder.alphaF()));
    if (orvane::look::contrast(seen, base) < orvane::look::markContrast) {
        mended.setColor(QPalette::PlaceholderText, orvane::look::quietColor(text, base));
        isMended = true;
    }
    // Every other row of a table. A dark palette that doesn't name it may have a light one.
    if (orvane::look::contrast(text, present.color(QPalette::AlternateBase)) < orvane::look::textContrast
        && orvane::look::contrast(text, base) >= orvane::look::textContrast) {
        constexpr double difference = 0.04;
        mended.setColor(QPalette::AlternateBase, orvane::look::mixed(base, text, difference));
        isMended = true;
    }
    if (isMended)
        QApplication::setPalette(mended);
}
