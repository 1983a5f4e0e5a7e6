#include "FieldEditors/SFWidgets/DvPopupWidget.h"

#include "FieldEditors/EditorIcons.h"
#include "FieldEditors/IconButton.h"
#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include <QDoubleValidator>
#include <QGridLayout>
#include <QGuiApplication>
#include <QIntValidator>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>

#include <limits>

namespace {

/// A popup that the click on its own button only closes: passed on, the click would open it again. When it closes, its
/// line loses the focus at once, even if no other widget takes it, so that what was typed is written to the field that
/// the popup was opened for.
class GridFrame final : public QFrame {
public:
    GridFrame(QWidget* parent, const QWidget* button)
        : QFrame(parent, Qt::Popup)
        , m_button(button)
    {
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        const QPoint position = m_button->mapFromGlobal(event->globalPosition().toPoint());
        if (m_button->rect().contains(position))
            setAttribute(Qt::WA_NoMouseReplay);
        QFrame::mousePressEvent(event);
    }
    void hideEvent(QHideEvent* event) override
    {
        if (QWidget* const line = focusWidget(); line != nullptr)
            line->clearFocus();
        QFrame::hideEvent(event);
    }

private:
    const QWidget* m_button;
};

void setValidator(QLineEdit* line, int kind)
{
    using Short = std::numeric_limits<short>;
    switch (kind) {
    case 0:
        line->setValidator(nullptr);
        break;
    case 1:
        line->setValidator(new QIntValidator(Short::min(), Short::max(), line));
        break;
    case 2:
        line->setValidator(new QIntValidator(line));
        break;
    case 3:
        orvane::acceptFloats(line);
        break;
    case 4:
        line->setValidator(new QDoubleValidator(line));
        break;
    default:
        break;
    }
}

} // namespace

DvPopupWidget::DvPopupWidget(int rows, int columns, const char* name)
    : DvSFLineWidget(name)
    , m_editIcon(orvane::editIcon())
    , m_rows(rows)
    , m_columns(columns)
{
    if (name == nullptr)
        setObjectName(QLatin1String("DvPopupWidget"));
}

DvPopupWidget::~DvPopupWidget() = default;

void DvPopupWidget::load()
{
    DvSFLineWidget::load();
    buildButton();
    lineEdit->setEnabled(false);
    buildPopup();
}

void DvPopupWidget::buildButton()
{
    m_editButton = orvane::makeIconButton(getFrame(), QStringLiteral("m_editButton"), m_editIcon);
    m_buttonsLayout->insertWidget(0, m_editButton, 0);
    connect(m_editButton, &QPushButton::clicked, this, &DvPopupWidget::managePopFramePos);
}

void DvPopupWidget::buildPopup()
{
    m_popupFrame = new GridFrame(getFrame(), m_editButton);
    m_popupFrame->resize(
        getLayoutMetric(QStringLiteral("PopupFrameWidth")), getLayoutMetric(QStringLiteral("PopupFrameHeight")));
    m_popupFrame->setFrameShape(QFrame::StyledPanel);
    m_popupFrame->setFrameShadow(QFrame::Raised);
    auto* const grid = new QGridLayout(m_popupFrame);
    setLayoutMetrics(grid, QStringLiteral("PopupLayoutMargin"), QStringLiteral("PopupLayoutSpacing"));
    grid->setObjectName(QStringLiteral("m_popupFrameLayout"));
    m_lines.clear();
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            auto* const line = new QLineEdit(m_popupFrame);
            grid->addWidget(line, row, column);
            m_lines.push_back(line);
            connect(line, &QLineEdit::editingFinished, this, &DvPopupWidget::setFocusLeaveEvent);
            connect(line, &QLineEdit::returnPressed, this, qOverload<>(&DvPopupWidget::applyChanges));
        }
    }
}

void DvPopupWidget::managePopFramePos()
{
    if (m_popupFrame->isVisible()) {
        m_popupFrame->hide();
        return;
    }
    QPoint position = getFrame()->mapToGlobal(m_editButton->geometry().bottomRight());
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    const int width = m_popupFrame->width() + m_editButton->width();
    const int height = m_popupFrame->height() + m_editButton->height();
    if (position.x() > screen.width() - width)
        position.rx() -= width;
    if (position.y() > screen.height() - height)
        position.ry() -= height;
    m_popupFrame->move(position);
    updateFromField();
    m_popupFrame->show();
}

bool DvPopupWidget::edited()
{
    return orvane::anyModified(m_lines);
}

void DvPopupWidget::setLinesValidator(int kind)
{
    for (QLineEdit* const line : m_lines)
        setValidator(line, kind);
}

void DvPopupWidget::resetLinesCursor()
{
    orvane::resetCursors(m_lines);
}
