#include "FieldEditors/MFWidgets/DvTablePopupWidget.h"

#include "FieldEditors/EditorIcons.h"
#include "FieldEditors/IconButton.h"
#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"
#include "FieldEditors/PopupGrid.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

DvTablePopupWidget::DvTablePopupWidget(int rows, int columns, const char* name)
    : DvMFieldWidget(name)
    , m_editPixmap(orvane::editIcon())
    , m_popupRows(rows)
    , m_popupColumns(columns)
{
    if (name == nullptr)
        setObjectName(QLatin1String("DvTablePopupWidget"));
}

DvTablePopupWidget::~DvTablePopupWidget() = default;

void DvTablePopupWidget::load()
{
    DvMFieldWidget::load();
    buildButton();
    // Rows can't be clicked: the current one follows the access box and the buttons.
    m_table->setEnabled(false);
    buildPopup();
    m_table->setColumnCount(1);
    m_table->setNumRows(0);
    connect(m_editButton, &QPushButton::clicked, this, &DvTablePopupWidget::setEditFrame);
}

void DvTablePopupWidget::buildButton()
{
    m_editButton = orvane::makeIconButton(getFrame(), QStringLiteral("m_editButton"), m_editPixmap);
    m_editButton->setFocusPolicy(Qt::NoFocus);
    // The gap before it loses the button's width, so that the strip keeps its length.
    m_accessMoveSpacer->changeSize(
        getLayoutMetric(QStringLiteral("MFAccessMoveSpacerWidth")) - getLayoutMetric(QStringLiteral("buttonWidth")),
        getLayoutMetric(QStringLiteral("MFAccessMoveSpacerHeight")), QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_buttonsLayout->insertWidget(4, m_editButton);
}

void DvTablePopupWidget::buildPopup()
{
    m_popupFrame = orvane::makePopupGrid(getFrame(), m_editButton);
    auto* const grid = qobject_cast<QGridLayout*>(m_popupFrame->layout());
    // Contract: column by column, while the lines are read as if they were row by row.
    for (int column = 0; column < m_popupColumns; ++column) {
        for (int row = 0; row < m_popupRows; ++row) {
            auto* const line = new DvTablePopupLineEdit(this, m_popupFrame, "");
            m_popupEdits.push_back(line);
            grid->addWidget(line, row, column);
            // Connected by text, with these blanks in the signal's spelling.
            // clang-format off
            connect(line, SIGNAL(textChanged ( const QString & )), line, SLOT(setCurrentValue(const QString &)));
            // clang-format on
        }
    }
}

void DvTablePopupWidget::setEditFrame()
{
    const int row = currentRow();
    for (std::size_t index = 0; index < m_popupEdits.size(); ++index) {
        m_popupEdits[index]->setText(getPopupCellValue(row, static_cast<int>(index)));
        m_popupEdits[index]->setCursorPosition(0); // a long number would hide its sign
    }
    if (m_popupFrame->isVisible()) {
        m_popupFrame->hide();
        return;
    }
    m_popupFrame->move(getFrame()->mapToGlobal(QPoint(0, 0)) - QPoint(m_popupFrame->width(), 0));
    m_popupFrame->show();
}

QString DvTablePopupWidget::getPopupCellValue(int /*row*/, int /*index*/)
{
    return {};
}

void DvTablePopupWidget::setPopupValidators(int kind)
{
    for (DvTablePopupLineEdit* const line : m_popupEdits)
        orvane::setLineValidator(line, kind);
}

int DvTablePopupWidget::currentRow() const
{
    return m_table->currentRow();
}
