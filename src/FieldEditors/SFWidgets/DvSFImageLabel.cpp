#include "FieldEditors/SFWidgets/DvSFImageLabel.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int longestSide = 256;

/// A picture in a popup window. A label ignores clicks and would thus keep its popup, and with it the mouse, for ever.
class PopupPicture final : public QLabel {
public:
    explicit PopupPicture(QWidget* parent)
        : QLabel(parent, Qt::Popup)
    {
    }

protected:
    // A popup gets the clicks outside it as well.
    void mousePressEvent(QMouseEvent* /*event*/) override { close(); }
};

} // namespace

DvSFImageLabel::DvSFImageLabel(int width, int height, QWidget* parent, const char* name)
    : QLabel(parent)
    , m_pixmapLabel(new PopupPicture(this))
{
    setObjectName(QString::fromLatin1(name));
    setScaledContents(true);
    setMouseTracking(true);
    setFixedSize(width, height);
    setFocusPolicy(Qt::NoFocus);
    m_pixmapLabel->setObjectName(QStringLiteral("pixmapLabel"));
    m_pixmapLabel->setFrameShape(QFrame::StyledPanel);
    m_pixmapLabel->setFrameShadow(QFrame::Raised);
    m_pixmapLabel->setScaledContents(true);
}

void DvSFImageLabel::showPixmap(const QPixmap& pixmap)
{
    m_pixmapLabel->setFixedSize(std::min(pixmap.width(), longestSide), std::min(pixmap.height(), longestSide));
    m_pixmapLabel->setPixmap(pixmap);
    setPixmap(pixmap);
}

void DvSFImageLabel::mouseMoveEvent(QMouseEvent* /*event*/)
{
    if (m_pixmapLabel->isVisible())
        return;
    // Contract: the position in the parent is used as one in the label, so the picture appears at twice the offset.
    QPoint position = mapToGlobal(geometry().topLeft());
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    if (position.x() > screen.width() - m_pixmapLabel->width())
        position.rx() -= m_pixmapLabel->width();
    if (position.y() > screen.height() - m_pixmapLabel->height())
        position.ry() -= m_pixmapLabel->height();
    m_pixmapLabel->move(position);
    m_pixmapLabel->show();
}
