#pragma once

#include <QColor>
#include <QObject>

class QWidget;

/// Takes the colour of a pixel of the screen: the one that is clicked next. Escape and the right button end it.
///
/// While it is on, it takes all keys and all events of the mouse of the application. It must be started from a popup,
/// which gets these events from the whole screen.
class Eyedropper : public QObject {
    Q_OBJECT

public:
    explicit Eyedropper(QWidget* popup);
    ~Eyedropper() override;

    /// Returns false if the colours of the screen can't be read here.
    bool start();
    [[nodiscard]] bool isOn() const noexcept { return m_on; }

    /// The colour of the screen at a global position; invalid if it can't be read.
    [[nodiscard]] static QColor colorAt(const QPoint& position);

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// The pointer is over a pixel of that colour.
    void hovered(const QColor& color);
    /// A pixel of that colour was clicked.
    void picked(const QColor& color);
    /// Nothing was chosen.
    void cancelled();

private:
    void stop();

    QWidget* m_popup;
    bool m_on = false;
};
