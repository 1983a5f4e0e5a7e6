#include "orvane/app/fields/FieldPanel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/scene/NodeIcons.h"

#include "meridane/scene/nodes/NxNode.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStackedLayout>
#include <QStyle>

FieldPanel::FieldPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new FieldTableModel(this))
    , m_view(new FieldTableView(this))
    , m_icon(new QLabel(this))
    , m_heading(new QLabel(this))
    , m_hint(new QWidget(this))
    , m_pages(new QStackedLayout(this))
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* headingLine = new QHBoxLayout;
    headingLine->setContentsMargins(8, 6, 8, 6);
    headingLine->setSpacing(6);
    headingLine->addWidget(m_icon);
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    headingLine->addWidget(m_heading, 1);
    layout->addLayout(headingLine);
    layout->addWidget(m_view);
    m_view->setModel(m_model);
    const int unit = fontMetrics().averageCharWidth();
    m_view->setColumnWidth(FieldTableModel::NameColumn, unit * 26);
    m_view->setColumnWidth(FieldTableModel::TypeColumn, unit * 18);

    auto* hintLayout = new QVBoxLayout(m_hint);
    auto* hint = new QLabel(tr("Select a node in the view or the scene tree to see its fields."), m_hint);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hintLayout->addWidget(hint);
    m_pages->addWidget(m_hint);
    m_pages->addWidget(page);

    // Not the current index: a view that gets the focus makes its first row current, and that must select nothing.
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_settingCurrent)
            Q_EMIT fieldChosen(currentField());
    });
    connect(m_view, &FieldTableView::currentPressed, this,
        [this](const QModelIndex& index) { Q_EMIT fieldChosen(m_model->field(index)); });
    setFocusProxy(m_view);
}

void FieldPanel::setNode(NxFieldContainer* node)
{
    const QScopedValueRollback guard(m_settingCurrent, true);
    m_model->setNode(node);
    updateHeading();
    m_pages->setCurrentIndex(node != nullptr ? 1 : 0);
}

void FieldPanel::updateHeading()
{
    const auto* node = dynamic_cast<const NxNode*>(m_model->node());
    if (node == nullptr)
        return;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(orvane::nodeIcon(node->getTypeId()).pixmap(size));
    const QString className = QString::fromUtf8(node->getClassName());
    const QString name = orvane::shortLine(orvane::toQString(node->getName()));
    m_heading->setText(name.isEmpty() ? className : tr("%1 — %2").arg(name, className));
}

void FieldPanel::setCurrentField(const NxField* field)
{
    const QScopedValueRollback guard(m_settingCurrent, true);
    if (field == currentField())
        return;
    const QModelIndex index = m_model->indexOf(field);
    if (index.isValid())
        m_view->setCurrentIndex(index);
    else
        m_view->clearSelection();
}

NxField* FieldPanel::currentField() const
{
    const QModelIndexList selected = m_view->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? nullptr : m_model->field(selected.front());
}
