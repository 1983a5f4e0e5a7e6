#pragma once

#include <QWidget>

/// Shows where what is dragged would come: a line between rows, or a frame around one.
class DropMark : public QWidget {
    Q_OBJECT

public:
    explicit DropMark(QWidget* viewport);

    void showLine(const QRect& row, bool isBelow);
    void showFrame(const QRect& row);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isLine = true;
};
