#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

#include "FieldEditors/EditorIcons.h"
#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/IconButton.h"
#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/MFWidgets/AccessButtonPrivate.h"
#include "FieldEditors/MFWidgets/CountLabel.h"
#include "FieldEditors/MFWidgets/DvMFColorTable.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"

#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/NxMField.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

// The table reads the field whenever a cell is painted, so `m_field` must become null when the field dies. The editor's
// own sensor can't do that: it is called late, it is attached to refused fields as well, and it doesn't report the
// death.
class DvMFieldWidget::FieldWatch final : public NxFieldSensor {
public:
    explicit FieldWatch(DvMFieldWidget& editor)
        : m_editor(editor)
    {
    }
    void notify() override { ++m_editor.m_fieldRevision; }
    void dyingReference() override
    {
        detach();
        ++m_editor.m_fieldRevision;
        m_editor.m_field = nullptr;
    }

private:
    DvMFieldWidget& m_editor;
};

namespace {

DvMFieldTable* makeTable(int tableKind, DvMFieldWidget* owner)
{
    if (static_cast<orvane::TableKind>(tableKind) == orvane::TableKind::Color)
        return new DvMFColorTable(owner, owner->getFrame(), "m_table");
    return new DvMFieldTable(owner, owner->getFrame(), "m_table");
}

QHBoxLayout* makeMovementLayout()
{
    auto* const layout = new QHBoxLayout;
    setLayoutMetrics(layout, QStringLiteral("MFButtonLayoutMargin"), QStringLiteral("MFButtonLayoutSpacing"));
    layout->setObjectName(QStringLiteral("movementButtonLayout"));
    return layout;
}

QSpacerItem* addElasticSpacer(QHBoxLayout* layout, const QString& widthMetric, const QString& heightMetric)
{
    auto* const spacer = new QSpacerItem(
        getLayoutMetric(widthMetric), getLayoutMetric(heightMetric), QSizePolicy::Expanding, QSizePolicy::Minimum);
    layout->addItem(spacer);
    return spacer;
}

QSpacerItem* fixedSpacer(int width, int height)
{
    return new QSpacerItem(width, height, QSizePolicy::Minimum, QSizePolicy::Minimum);
}

} // namespace

DvMFieldWidget::DvMFieldWidget(const char* name)
    : DvMFieldWidget(orvane::kindNumber(orvane::TableKind::Plain), name)
{
}

DvMFieldWidget::DvMFieldWidget(int tableKind, const char* name)
    : m_deletePixmap(orvane::deleteRowIcon())
    , m_addPixmap(orvane::addRowIcon())
    , m_upPixmap(orvane::moveUpIcon())
    , m_downPixmap(orvane::moveDownIcon())
    , m_defaultPixmap(orvane::setDefaultIcon())
    , m_ignorePixmap(orvane::ignoreIcon())
    , m_fieldWatch(std::make_unique<FieldWatch>(*this))
{
    setObjectName(QLatin1String(name != nullptr ? name : "DvMFieldWidget"));
    m_table = makeTable(tableKind, this);
}

DvMFieldWidget::~DvMFieldWidget() = default;

void DvMFieldWidget::load()
{
    OrvFieldEditors::load();
    m_frame->setFrameShape(QFrame::Box);
    m_frame->setFrameShadow(QFrame::Plain);
    m_frame->setLineWidth(getLayoutMetric(QStringLiteral("frameLineWidth")));
    m_globalLayout = new QGridLayout(m_frame);
    m_globalLayout->setObjectName(QStringLiteral("m_globalLayout"));
    setLayoutMetrics(m_globalLayout, QStringLiteral("MFGlobalLayoutMarging"), QStringLiteral("MFGlobalLayoutSpacing"));
    buildLabel();
    m_buttonsLayout = new QHBoxLayout;
    m_buttonsLayout->setObjectName(QStringLiteral("m_buttonsLayout"));
    setLayoutMetrics(
        m_buttonsLayout, QStringLiteral("MFGlobalButtonsLayoutMargin"), QStringLiteral("MFGlobalButtonsLayoutSpacing"));
    buildManageButtons();
    buildAccess();
    buildMoveButtons();
    buildStateButtons();
    m_globalLayout->addLayout(m_buttonsLayout, 0, 2);
    m_globalLayout->addWidget(m_table, 2, 2);
    m_table->setMinimumHeight(getLayoutMetric(QStringLiteral("MFTableMinHeightUnix")));
    // A click must not take the focus from a cell that is being edited.
    for (QPushButton* const button :
        {m_addButton, m_deleteButton, m_upButton, m_downButton, m_defaultButton, m_ignoreButton})
        button->setFocusPolicy(Qt::NoFocus);
    connectControls();
    languageChange();
}

void DvMFieldWidget::buildLabel()
{
    m_label->setObjectName(QStringLiteral("m_label"));
    QFont font = m_label->font();
    font.setPointSize(getLayoutMetric(QStringLiteral("labelPointSize")));
    m_label->setFont(font);
    m_label->setFrameShape(QFrame::Box);
    m_label->setFrameShadow(QFrame::Plain);
    m_label->setLineWidth(getLayoutMetric(QStringLiteral("labelLineWidth")));
    m_label->setScaledContents(true);
    m_globalLayout->addWidget(m_label, 0, 0);
    m_globalLayout->addItem(fixedSpacer(0, 4), 1, 0);
    m_globalLayout->addItem(fixedSpacer(6, 0), 0, 1);
}

void DvMFieldWidget::buildManageButtons()
{
    m_manageButtonsLayout = new QHBoxLayout;
    m_manageButtonsLayout->setObjectName(QStringLiteral("m_manageButtonsLayout"));
    m_manageButtonsLayout->setSpacing(getLayoutMetric(QStringLiteral("MFButtonLayoutSpacing")));
    // Set on the strip, which has a margin already, and not on the layout of the buttons. Both metrics are equal.
    const int margin = getLayoutMetric(QStringLiteral("MFButtonLayoutMargin"));
    m_buttonsLayout->setContentsMargins(margin, margin, margin, margin);
    m_addButton = orvane::makeIconButton(m_frame, QStringLiteral("m_addButton"), m_addPixmap);
    m_deleteButton = orvane::makeIconButton(m_frame, QStringLiteral("m_deleteButton"), m_deletePixmap);
    m_manageButtonsLayout->addWidget(m_addButton);
    m_manageButtonsLayout->addWidget(m_deleteButton);
    m_buttonsLayout->addLayout(m_manageButtonsLayout);
}

void DvMFieldWidget::buildAccess()
{
    m_manageAccessSpacer = addElasticSpacer(
        m_buttonsLayout, QStringLiteral("MFManageAccessSpacerWidth"), QStringLiteral("MFManageAccessSpacerHeight"));
    m_accessBox = new AccessButtonPrivate(0, 0, 1, m_frame, "m_accessBox");
    m_accessBox->setFixedSize(
        getLayoutMetric(QStringLiteral("MFAccessWidth")), getLayoutMetric(QStringLiteral("buttonHeight")));
    m_buttonsLayout->addWidget(m_accessBox);
    m_accessMoveSpacer = addElasticSpacer(
        m_buttonsLayout, QStringLiteral("MFAccessMoveSpacerWidth"), QStringLiteral("MFAccessMoveSpacerHeight"));
    m_buttonsLayout->addItem(fixedSpacer(0, 4));
    m_labelNumElement = new CountLabel(m_frame);
    m_labelNumElement->setObjectName(QStringLiteral("m_labelNumElement"));
    refreshElementCount();
    m_buttonsLayout->addWidget(m_labelNumElement);
}

void DvMFieldWidget::buildMoveButtons()
{
    m_moveButtonsLayout = makeMovementLayout();
    m_upButton = orvane::makeIconButton(m_frame, QStringLiteral("m_upButton"), m_upPixmap);
    m_downButton = orvane::makeIconButton(m_frame, QStringLiteral("m_downButton"), m_downPixmap);
    m_moveButtonsLayout->addWidget(m_upButton);
    m_moveButtonsLayout->addWidget(m_downButton);
    m_buttonsLayout->addLayout(m_moveButtonsLayout);
}

void DvMFieldWidget::buildStateButtons()
{
    // Contract: it has the name of the layout before it, so a search by name finds the first.
    m_stateButtonsLayout = makeMovementLayout();
    m_defaultButton = orvane::makeIconButton(m_frame, QStringLiteral("m_defaultButton"), m_defaultPixmap);
    m_ignoreButton = orvane::makeIconButton(m_frame, QStringLiteral("m_ignoreButton"), m_ignorePixmap);
    m_ignoreButton->setCheckable(true);
    m_stateButtonsLayout->addWidget(m_defaultButton);
    m_stateButtonsLayout->addWidget(m_ignoreButton);
    m_buttonsLayout->addLayout(m_stateButtonsLayout);
}

void DvMFieldWidget::connectControls()
{
    connect(m_upButton, &QPushButton::clicked, m_table, &DvMFieldTable::swapUpRow);
    connect(m_downButton, &QPushButton::clicked, m_table, &DvMFieldTable::swapDownRow);
    connect(m_deleteButton, &QPushButton::clicked, m_table, &DvMFieldTable::deleteRow);
    connect(m_addButton, &QPushButton::clicked, m_table, &DvMFieldTable::addRow);
    connect(m_accessBox, &QSpinBox::valueChanged, m_table, &DvMFieldTable::showTableRow);
    connect(m_ignoreButton, &QPushButton::released, this, &DvMFieldWidget::ignoreButtonStateChanged);
    connect(m_defaultButton, &QPushButton::clicked, this, &DvMFieldWidget::setDefaultFieldValue);
}

void DvMFieldWidget::setField(NxField* field)
{
    if (prepareForField(field)) {
        m_field = dynamic_cast<NxMField*>(field);
        m_fieldWatch->attach(m_field);
        ++m_fieldRevision;
    }
    OrvFieldEditors::setField(field);
}

void DvMFieldWidget::updateFromField()
{
    if (m_table == nullptr || !m_refreshEnabled || m_field == nullptr)
        return;
    m_table->setNumRows(m_field->getNum());
    m_table->update();
    m_ignoreButton->setChecked(m_field->isIgnored());
    refreshElementCount();
}

void DvMFieldWidget::setRefreshEnabled(bool enabled)
{
    m_refreshEnabled = enabled;
}

void DvMFieldWidget::swapRows(int /*first*/, int /*second*/) { }

void DvMFieldWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the concrete editors take the text
void DvMFieldWidget::setCellValue(int /*row*/, int /*column*/, QString /*value*/) { }

void DvMFieldWidget::setRowColor(int /*row*/, const VbVec4f& /*value*/) { }

void DvMFieldWidget::applyChanges() { }

QString DvMFieldWidget::getCellValue(int /*row*/, int /*column*/)
{
    return {};
}

int DvMFieldWidget::getCellAlignment()
{
    return Qt::AlignCenter;
}

bool DvMFieldWidget::prepareForField(NxField* /*field*/)
{
    return false;
}

void DvMFieldWidget::languageChange()
{
    m_deleteButton->setText(QString());
    m_deleteButton->setToolTip(QStringLiteral("Delete current row"));
    m_accessBox->setToolTip(QStringLiteral("Quick access to rows"));
    m_upButton->setText(QString());
    m_upButton->setToolTip(QStringLiteral("Bring up current row"));
    m_downButton->setText(QString());
    m_downButton->setToolTip(QStringLiteral("Bring down current row"));
    m_defaultButton->setText(QString());
    m_defaultButton->setToolTip(QStringLiteral("Set to default"));
    m_ignoreButton->setText(QString());
    m_ignoreButton->setToolTip(QStringLiteral("Ignore this field"));
    m_addButton->setText(QString());
    m_addButton->setToolTip(QStringLiteral("Add a row"));
}

void DvMFieldWidget::ignoreButtonStateChanged()
{
    orvane::setFieldIgnored(m_field, m_ignoreButton->isChecked());
}

void DvMFieldWidget::setDefaultFieldValue()
{
    orvane::setDefaultFieldValue(m_field);
}

void DvMFieldWidget::setElementTypeLabel(const QString& type)
{
    if (m_label == nullptr)
        m_label = new QLabel(m_frame);
    if (!m_label->text().isEmpty())
        return;
    m_label->setText(tr("<p align=\"center\">") + type + tr("</p>"));
}

void DvMFieldWidget::refreshElementCount()
{
    if (m_field == nullptr)
        return;
    // Contract: the plural also for one value, and never translated.
    const QString text = QString::number(m_field->getNum()) + QStringLiteral(" elements");
    m_labelNumElement->setLine(text, tr("<p align=\"center\">") + text + tr("</p>"));
}
