#pragma once

#include <QFrame>

#include <vector>

class NumberLine;

/// A frame that opens at a cell, takes the keys and the clicks, and closes by itself.
///
/// Return and a click outside accept what it holds, Escape restores what was there before. The parent owns it; it isn't
/// deleted when it closes. User-interface thread only.
class PopupFrame : public QFrame {
    Q_OBJECT

public:
    explicit PopupFrame(QWidget* parent);

    /// Opens below the cell, or above it if only there is room; in global coordinates, and within the screen.
    void openAt(const QRect& cell);

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// It has closed, and what it holds is to be kept.
    void accepted();
    /// It has closed by Escape.
    void rejected();

protected:
    /// Return in this line, which is part of the popup, accepts its text and closes the popup. A text that can't be
    /// taken keeps the popup open.
    void addLine(NumberLine* line);
    /// Closes it.
    void finish(bool accept);
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] bool acceptLines();

    std::vector<NumberLine*> m_lines; // children
    bool m_open = false;
};
