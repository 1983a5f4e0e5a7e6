#include "FieldEditors/SFWidgets/DvPopupWidget.h"

#include "FieldEditors/EditorIcons.h"
#include "FieldEditors/IconButton.h"
#include "FieldEditors/PopupGrid.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

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
    m_popupFrame = orvane::makePopupGrid(getFrame(), m_editButton);
    auto* const grid = qobject_cast<QGridLayout*>(m_popupFrame->layout());
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
        orvane::setLineValidator(line, kind);
}

void DvPopupWidget::resetLinesCursor()
{
    orvane::resetCursors(m_lines);
}
