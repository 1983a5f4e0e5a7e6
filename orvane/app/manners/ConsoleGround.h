#pragma once

#include <QColor>
#include <QObject>

class QWidget;

/// Gives the console of the default plug-in a light background in every theme: its texts are dark red, dark green and
/// dark yellow, whatever the palette is. No dark background has enough contrast to all of them.
class ConsoleGround : public QObject {
    Q_OBJECT

public:
    /// The contrast that each of the colours has at least; the background that has most with all of them, white, has
    /// 4.2.
    static constexpr double leastContrast = 4;

    /// Consoles of the window, which owns this, and those that come.
    explicit ConsoleGround(QWidget* window);

    /// The background, and the colour of texts that have none of their own.
    [[nodiscard]] static QColor ground() { return {0xFA, 0xFA, 0xFA}; }
    [[nodiscard]] static QColor ink() { return {0x1B, 0x1E, 0x21}; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};
