#include "orvane/app/inspect/FieldTitleBar.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/look/Symbols.h"

#include <QDockWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

FieldTitleBar::FieldTitleBar(QDockWidget* dock)
    : QWidget(dock)
    , m_dock(dock)
    , m_floatButton(addButton("dockFloatButton", QT_TR_NOOP("Float or dock")))
    , m_closeButton(addButton("dockCloseButton", QT_TR_NOOP("Close")))
    , m_padlock(orvane::look::symbol(QStringLiteral("locked")))
{
    setObjectName(QStringLiteral("fieldTitleBar"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addStretch(1);
    layout->addWidget(m_floatButton);
    layout->addWidget(m_closeButton);
    connect(m_floatButton, &QToolButton::clicked, dock, [dock] { dock->setFloating(!dock->isFloating()); });
    connect(m_closeButton, &QToolButton::clicked, dock, &QDockWidget::close);
    connect(dock, &QDockWidget::featuresChanged, this, &FieldTitleBar::updateButtons);
    connect(dock, &QWidget::windowTitleChanged, this, &FieldTitleBar::updateTexts);
    updateButtons();
    orvane::followLanguage(this, [this] { updateTexts(); });
}

QToolButton* FieldTitleBar::addButton(const char* name, const char* text)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    orvane::followLanguage(button, [button, text] {
        button->setToolTip(tr(text));
        button->setAccessibleName(tr(text));
    });
    return button;
}

void FieldTitleBar::setField(const QString& path, bool isLocked)
{
    constexpr qsizetype mostCharacters = 2000;
    const QString shown = orvane::shortLine(path, mostCharacters);
    if (shown == m_path && isLocked == m_isLocked)
        return;
    m_path = shown;
    m_isLocked = isLocked;
    updateTexts();
}

void FieldTitleBar::updateTexts()
{
    const QString title = m_dock->windowTitle();
    const QString text = m_path.isEmpty() ? title : tr("%1: %2").arg(title, m_path);
    setAccessibleName(text);
    setToolTip(orvane::plainToolTip(m_isLocked ? tr("%1\nThe lock is on: it stays on this field.").arg(text) : text));
    update();
}

void FieldTitleBar::updateButtons()
{
    // As the style has them in usual title bars.
    const int most = style()->pixelMetric(QStyle::PM_TitleBarButtonIconSize, nullptr, m_dock);
    const int margin = style()->pixelMetric(QStyle::PM_DockWidgetTitleBarButtonMargin, nullptr, m_dock);
    const std::pair<QToolButton*, QStyle::StandardPixmap> icons[]{
        {m_floatButton, QStyle::SP_TitleBarNormalButton}, {m_closeButton, QStyle::SP_TitleBarCloseButton}};
    for (const auto& [button, picture] : icons) {
        const QIcon icon = style()->standardIcon(picture, nullptr, m_dock);
        const QSize size = icon.actualSize({most, most});
        button->setIcon(icon);
        button->setIconSize(size);
        button->setFixedSize(size.grownBy({margin, margin, margin, margin}));
    }
    m_floatButton->setVisible(m_dock->features().testFlag(QDockWidget::DockWidgetFloatable));
    m_closeButton->setVisible(m_dock->features().testFlag(QDockWidget::DockWidgetClosable));
    updateGeometry();
}

void FieldTitleBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        updateButtons();
    QWidget::changeEvent(event);
}

int FieldTitleBar::barHeight() const
{
    const int margin = style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, m_dock);
    return std::max(fontMetrics().height() + 2 * margin, m_closeButton->height());
}

QSize FieldTitleBar::sizeHint() const
{
    const int margin = 2 * orvane::look::unit(fontMetrics());
    const int buttons = layout()->sizeHint().width();
    return {margin + fontMetrics().horizontalAdvance(m_dock->windowTitle()) + buttons, barHeight()};
}

QSize FieldTitleBar::minimumSizeHint() const
{
    constexpr int fewLetters = 8;
    return {fontMetrics().averageCharWidth() * fewLetters + layout()->sizeHint().width(), barHeight()};
}

void FieldTitleBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int unit = orvane::look::unit(fontMetrics());
    QRect room = rect().adjusted(unit, 0, 0, 0);
    room.setRight((m_floatButton->isVisible()          ? m_floatButton->x()
                          : m_closeButton->isVisible() ? m_closeButton->x()
                                                       : width())
        - unit);
    if (m_isLocked) {
        const int side = orvane::look::iconSize(fontMetrics());
        m_padlock.paint(&painter, QRect(room.left(), room.center().y() - side / 2, side, side));
        room.setLeft(room.left() + side + unit);
    }
    const QString text = m_path.isEmpty() ? m_dock->windowTitle().remove(QStringLiteral("[*]")) : m_path;
    style()->drawItemText(&painter, room, static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft), palette(), isEnabled(),
        fontMetrics().elidedText(text, Qt::ElideMiddle, room.width()), foregroundRole());
}
