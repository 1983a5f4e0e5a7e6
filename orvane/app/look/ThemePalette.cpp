#include "orvane/app/look/ThemePalette.h"

#include <QColor>

namespace orvane::look {

namespace {

/// What a palette consists of; the other colours follow from these.
struct Inks {
    QColor window;
    QColor base; // behind what is edited and listed
    QColor alternateBase; // every other row
    QColor button;
    QColor text;
    QColor disabledText;
    QColor placeholder; // in empty lines
    QColor highlight;
    QColor highlightedText;
    QColor quietHighlight; // what is selected where it is disabled
    QColor link;
    QColor visitedLink;
    QColor toolTip;
    QColor light; // edges, from light to dark
    QColor midlight;
    QColor mid;
    QColor dark;
    QColor shadow;
};

QPalette paletteOf(const Inks& inks)
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, const QColor& color) { palette.setColor(role, color); };
    set(QPalette::Window, inks.window);
    set(QPalette::Base, inks.base);
    set(QPalette::AlternateBase, inks.alternateBase);
    set(QPalette::Button, inks.button);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        set(role, inks.text);
    set(QPalette::BrightText, inks.highlightedText);
    set(QPalette::PlaceholderText, inks.placeholder);
    set(QPalette::Highlight, inks.highlight);
    set(QPalette::HighlightedText, inks.highlightedText);
    set(QPalette::Link, inks.link);
    set(QPalette::LinkVisited, inks.visitedLink);
    set(QPalette::ToolTipBase, inks.toolTip);
    set(QPalette::Light, inks.light);
    set(QPalette::Midlight, inks.midlight);
    set(QPalette::Mid, inks.mid);
    set(QPalette::Dark, inks.dark);
    set(QPalette::Shadow, inks.shadow);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText,
             QPalette::Link, QPalette::LinkVisited})
        palette.setColor(QPalette::Disabled, role, inks.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Base, inks.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, inks.quietHighlight);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, inks.text);
    return palette;
}

} // namespace

QPalette lightPalette()
{
    return paletteOf({.window = QColor(0xF1, 0xF2, 0xF4),
        .base = Qt::white,
        .alternateBase = QColor(0xF5, 0xF7, 0xF9),
        .button = QColor(0xF6, 0xF7, 0xF8),
        .text = QColor(0x1B, 0x1E, 0x21),
        .disabledText = QColor(0x75, 0x7A, 0x80),
        .placeholder = QColor(0x66, 0x6B, 0x70),
        .highlight = QColor(0x2A, 0x6B, 0xBA),
        .highlightedText = Qt::white,
        .quietHighlight = QColor(0xC9, 0xD3, 0xDF),
        .link = QColor(0x1F, 0x5F, 0xA8),
        .visitedLink = QColor(0x6A, 0x3F, 0xB5),
        .toolTip = Qt::white,
        .light = Qt::white,
        .midlight = QColor(0xE6, 0xE8, 0xEB),
        .mid = QColor(0xB8, 0xBC, 0xC2),
        .dark = QColor(0x9A, 0x9F, 0xA6),
        .shadow = QColor(0x70, 0x75, 0x7B)});
}

QPalette darkPalette()
{
    return paletteOf({.window = QColor(0x2B, 0x2E, 0x32),
        .base = QColor(0x23, 0x26, 0x29),
        .alternateBase = QColor(0x29, 0x2C, 0x30),
        .button = QColor(0x35, 0x39, 0x3E),
        .text = QColor(0xEC, 0xEF, 0xF1),
        .disabledText = QColor(0x8C, 0x92, 0x99),
        .placeholder = QColor(0x9C, 0xA2, 0xA9),
        .highlight = QColor(0x2A, 0x6B, 0xBA),
        .highlightedText = Qt::white,
        .quietHighlight = QColor(0x45, 0x4D, 0x57),
        .link = QColor(0x8A, 0xBC, 0xF5),
        .visitedLink = QColor(0xB9, 0xA0, 0xF2),
        .toolTip = QColor(0x3A, 0x3E, 0x44),
        .light = QColor(0x4A, 0x4F, 0x55),
        .midlight = QColor(0x40, 0x44, 0x4A),
        .mid = QColor(0x1F, 0x22, 0x25),
        .dark = QColor(0x17, 0x19, 0x1B),
        .shadow = QColor(0x0C, 0x0D, 0x0E)});
}

} // namespace orvane::look
