#pragma once

#include <QFrame>
#include <QPointer>
#include <QRect>

class QLabel;
class QTimer;

/// Why an input can't be taken, shown beside the widget that it was typed into. It never takes the focus, the keys or
/// the clicks of another widget; a click on it closes it.
///
/// It is below the widget, or above it where there is no room, within the screen. It follows the widget and goes with
/// it. A window has one message at a time; the next one replaces it. The window owns it. User-interface thread only.
class InputMessage : public QFrame {
    Q_OBJECT

public:
    enum class Kind { Error, Warning };

    /// Shows the text, as it is, until the text of the widget is edited, the widget is hidden or `clear` is called. An
    /// accessible description of the widget has the text as long.
    static void showFor(QWidget* widget, const QString& text, Kind kind = Kind::Error);
    /// Shows the text for some seconds, the longer the text the longer, at a place in the widget's coordinates: for the
    /// text of a line that is left or goes away.
    static void showBriefly(QWidget* widget, const QRect& place, const QString& text, Kind kind = Kind::Error);
    /// Closes the message that is shown for the widget, if there is one.
    static void clear(const QWidget* widget);
    /// The message in the window of that widget; null if there is none.
    [[nodiscard]] static InputMessage* shownIn(const QWidget* widget);

    [[nodiscard]] QString text() const;
    [[nodiscard]] Kind kind() const noexcept { return m_kind; }

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    InputMessage(QWidget* widget, const QRect& place, const QString& text, Kind kind);

    void watch();
    void fitText();
    void placeBeside();
    void dismiss();
    void describeWidget(const QString& text);

    QPointer<QWidget> m_widget;
    QRect m_place; // in the widget; null for the whole widget
    Kind m_kind;
    QLabel* m_label;
    QString m_formerDescription;
    bool m_dismissed = false;
};
