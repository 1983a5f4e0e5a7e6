#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

namespace nodes {

/// An image as large as fits the width, in its own proportions, before a checkered ground; or a text in its place.
class TexturePicture : public QWidget {
    Q_OBJECT

public:
    TexturePicture();

    /// Shows an image, or, if it is null, the text.
    void setPicture(const QImage& image, const QString& otherwise);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_image;
    QString m_text;
};

} // namespace nodes
