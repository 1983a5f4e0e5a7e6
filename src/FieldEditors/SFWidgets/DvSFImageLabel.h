#pragma once

#include <QLabel>

/// A thumbnail that shows its picture enlarged while the mouse moves over it, until the next click.
///
/// Both are scaled to their size without keeping the proportions: the thumbnail to the size it is given, the enlarged
/// picture to 256 pixels on each side that is longer than that.
class DvSFImageLabel final : public QLabel {
public:
    /// Width and height are those of the thumbnail, in pixels.
    DvSFImageLabel(int width, int height, QWidget* parent, const char* name);

    /// Shows the pixmap in both sizes, which share its data. An empty one shows nothing, and the enlarged picture then
    /// has no extent.
    void showPixmap(const QPixmap& pixmap);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QLabel* m_pixmapLabel; // the enlarged picture
};
