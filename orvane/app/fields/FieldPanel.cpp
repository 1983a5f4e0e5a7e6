#include "orvane/app/fields/FieldPanel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/fields/FieldActions.h"
#include "orvane/app/fields/FieldColumns.h"
#include "orvane/app/fields/FieldFilterBar.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/fields/FieldTextDelegate.h"
#include "orvane/app/fields/MarkDelegate.h"
#include "orvane/app/fields/cells/NameScrub.h"
#include "orvane/app/fields/cells/ValueDelegate.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/tree/NodeIcons.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStackedLayout>

#include <initializer_list>
#include <utility>

FieldPanel::FieldPanel(OrvServices& services, AppSettings& settings, QWidget* parent, const QString& name)
    : QWidget(parent)
    , m_settings(settings, name)
    , m_writer(services)
    , m_model(new FieldTableModel(this))
    , m_view(new FieldTableView(this))
    , m_values(new ValueDelegate(m_view, m_writer, &settings))
    , m_names(new FieldTextDelegate(meridane::SearchedText::Name, this))
    , m_types(new FieldTextDelegate(meridane::SearchedText::Class, this))
    , m_filter(new FieldFilterBar(this))
    , m_icon(new QLabel(this))
    , m_heading(new QLabel(this))
    , m_tools(new QHBoxLayout)
    , m_nothing(new QLabel(this))
    , m_hint(new QWidget(this))
    , m_pages(new QStackedLayout(this))
{
    auto* page = new QWidget(this);
    buildPage(page);
    buildColumns();
    m_view->setItemDelegateForColumn(FieldTableModel::NameColumn, m_names);
    m_view->setItemDelegateForColumn(FieldTableModel::TypeColumn, m_types);
    m_view->setItemDelegateForColumn(FieldTableModel::ValueColumn, m_values);
    new NameScrub(m_view, m_values, FieldTableModel::NameColumn, FieldTableModel::ValueColumn);
    buildHint();
    m_pages->addWidget(m_hint);
    m_pages->addWidget(page);
    connectView();
    const auto* const actions = new FieldActions(services, m_values->services(), m_model, m_view);
    connect(actions, &FieldActions::nodesFound, this, &FieldPanel::nodesFound);
    connect(actions, &FieldActions::failed, this, &FieldPanel::showFailure);
    connect(actions, &FieldActions::favoriteToggled, this, &FieldPanel::toggleFavorite);
    connect(actions, &FieldActions::deferralToggled, this, &FieldPanel::setDeferred);
    connect(&m_values->services(), &CellServices::failed, this, &FieldPanel::showFailure);
    connect(&m_writer, &FieldWriter::failed, this, &FieldPanel::showFailure);
    m_writer.setDeferral([this](const NxField& first) {
        const FieldRow* const row = m_model->row(m_model->indexOf(&first));
        return row != nullptr && m_settings.isDeferred(orvane::favoriteKey(*row));
    });
    m_model->setWriter(m_writer);
    setFocusProxy(m_view);
    orvane::followLanguage(this, [this] {
        updateTexts();
        updateHeading();
    });
}

// An editor that is still open in the view ends its edit through the writer.
FieldPanel::~FieldPanel()
{
    delete m_view;
}

void FieldPanel::buildPage(QWidget* page)
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* headingLine = new QHBoxLayout;
    headingLine->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    headingLine->setSpacing(unit);
    headingLine->addWidget(m_icon);
    m_heading->setObjectName(QStringLiteral("fieldHeading"));
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    headingLine->addWidget(m_heading, 1);
    headingLine->addLayout(m_tools);
    layout->addLayout(headingLine);
    layout->addWidget(m_filter);
    layout->addWidget(m_view, 1);
    m_nothing->setObjectName(QStringLiteral("noFieldFound"));
    m_nothing->setTextFormat(Qt::PlainText);
    m_nothing->setWordWrap(true);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing->setMargin(2 * unit);
    m_nothing->hide();
    layout->addWidget(m_nothing);
}

void FieldPanel::buildColumns()
{
    m_view->setModel(m_model);
    auto* const marks = new MarkDelegate(this);
    m_view->setItemDelegateForColumn(FieldTableModel::MarkColumn, marks);
    // Not while the view still works on the click: it may change which rows there are.
    connect(
        marks, &MarkDelegate::clicked, this,
        [this](FieldMark mark, const QPersistentModelIndex& index) {
            if (index.isValid())
                useMark(mark, index);
        },
        Qt::QueuedConnection);
    new FieldColumns(m_view, *m_model, m_settings);
}

void FieldPanel::buildHint()
{
    auto* hintLayout = new QVBoxLayout(m_hint);
    auto* hint = new QLabel(m_hint);
    orvane::followLanguage(
        hint, [hint] { hint->setText(tr("Select a node in the view or the scene tree to see its fields.")); });
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hintLayout->addWidget(hint);
}

void FieldPanel::connectView()
{
    // Not the current index: a view that gets the focus makes its first row current, and that must select nothing.
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndexList selected = m_view->selectionModel()->selectedRows();
        const bool isGroup = !selected.isEmpty() && m_model->row(selected.front()) == nullptr;
        if (!m_settingCurrent && !isGroup)
            Q_EMIT fieldChosen(currentField());
    });
    connect(m_view, &FieldTableView::currentPressed, this, [this](const QModelIndex& index) {
        if (m_model->row(index) != nullptr)
            Q_EMIT fieldChosen(m_model->field(index));
    });
    connect(m_view, &FieldTableView::openRequested, this, [this](const QModelIndex& index) {
        if (auto* const list = dynamic_cast<NxMField*>(m_model->field(index)))
            Q_EMIT listRequested(list);
    });
    connect(m_view, &FieldTableView::editorRequested, this, &FieldPanel::editorRequested);
    connect(m_view, &QTreeView::collapsed, this, [this](const QModelIndex& index) { foldingChanged(index, true); });
    connect(m_view, &QTreeView::expanded, this, [this](const QModelIndex& index) { foldingChanged(index, false); });
    connect(m_filter, &FieldFilterBar::changed, this, &FieldPanel::applyFilter);
    connect(m_filter, &FieldFilterBar::left, this, [this] { m_view->setFocus(); });
}

void FieldPanel::setNode(NxFieldContainer* node)
{
    setNodes(node != nullptr ? std::make_shared<const FieldSet::Nodes>(1, node) : nullptr);
}

void FieldPanel::setNodes(const std::shared_ptr<const FieldSet::Nodes>& nodes)
{
    const QScopedValueRollback guard(m_settingCurrent, true);
    m_model->setFavorites(m_settings.favorites()); // which another panel may have changed
    m_model->setNodes(nodes);
    unfoldGroups();
    updateHeading();
    m_pages->setCurrentIndex(m_model->node() != nullptr ? 1 : 0);
}

void FieldPanel::setSceneFolder(std::function<QString()> folder)
{
    m_values->services().setFolder(std::move(folder));
}

void FieldPanel::updateHeading()
{
    const auto* node = dynamic_cast<const NxNode*>(m_model->node());
    if (node == nullptr)
        return;
    m_icon->setPixmap(orvane::nodeIcon(node->getTypeId()).pixmap(orvane::look::iconSize(fontMetrics())));
    const QString className = QString::fromUtf8(node->getClassName());
    const QString name = orvane::shortLine(orvane::toQString(node->getName()));
    QString text = name.isEmpty() ? className : tr("%1 — %2").arg(name, className);
    if (m_model->nodeCount() > 1)
        text = tr("%1 nodes, the last one: %2").arg(orvane::countText(m_model->nodeCount()), text);
    m_heading->setText(text);
    m_heading->setToolTip(orvane::plainToolTip(text)); // in a narrow dock its end is cut
}

template <typename Change>
void FieldPanel::changeRows(Change change)
{
    const QScopedValueRollback guard(m_settingCurrent, true);
    const NxField* const current = currentField();
    const int place = m_view->verticalScrollBar()->value();
    change();
    unfoldGroups();
    const QModelIndex index = m_model->indexOf(current);
    if (!index.isValid())
        return;
    m_view->setCurrentIndex(index);
    m_view->verticalScrollBar()->setValue(place);
    m_view->scrollTo(index);
}

void FieldPanel::applyFilter()
{
    for (FoundTextDelegate* const each : std::initializer_list<FoundTextDelegate*>{m_names, m_types, m_values})
        each->setQuery(m_filter->query());
    changeRows([this] { m_model->setFilter(m_filter->query(), m_filter->isChangedOnly()); });
}

void FieldPanel::unfoldGroups()
{
    const QScopedValueRollback guard(m_folding, true);
    // Where something is looked for, nothing is hidden.
    const bool isFiltered = m_filter->isOn();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex group = m_model->index(row, 0);
        m_view->setExpanded(group, isFiltered || !m_settings.isFolded(m_model->group(group)->key));
    }
    m_nothing->setVisible(m_model->node() != nullptr && m_model->rowCount() == 0);
    updateTexts();
}

void FieldPanel::updateTexts()
{
    const QString reason = m_model->nodeCount() > 1 ? tr("These nodes have no field in common.")
                                                    : tr("Nodes of this class have no fields.");
    m_nothing->setText(m_filter->isOn() ? tr("No field fits the filter.") : reason);
}

void FieldPanel::foldingChanged(const QModelIndex& index, bool folded)
{
    const FieldGroup* const group = m_model->group(index);
    if (!m_folding && group != nullptr)
        m_settings.setFolded(group->key, folded);
}

void FieldPanel::useMark(FieldMark mark, const QModelIndex& index)
{
    const FieldSet fields = m_model->fieldSet(index);
    orvane::Result<> result;
    switch (mark) {
    case FieldMark::Ignore:
        result = m_writer.setIgnored(fields, !fields.isIgnored());
        break;
    case FieldMark::Reset:
        result = m_writer.reset(fields);
        break;
    case FieldMark::Favorite:
        toggleFavorite(index);
        break;
    }
    if (!result)
        showFailure(result.error());
}

void FieldPanel::toggleFavorite(const QModelIndex& index)
{
    const FieldRow* const row = m_model->row(index);
    if (row == nullptr || row->fields().isEmpty())
        return;
    m_settings.setFavorite(orvane::favoriteKey(*row), !index.data(FieldRoles::FavoriteRole).toBool());
    changeRows([this] { m_model->setFavorites(m_settings.favorites()); });
}

void FieldPanel::setDeferred(const QModelIndex& index, bool deferred)
{
    const FieldRow* const row = m_model->row(index);
    if (row != nullptr && !row->fields().isEmpty() && !row->isList())
        m_settings.setDeferred(orvane::favoriteKey(*row), deferred);
}

void FieldPanel::showFailure(const QString& message)
{
    const QModelIndex current = m_view->currentIndex().siblingAtColumn(FieldTableModel::ValueColumn);
    InputMessage::showBriefly(m_view->viewport(), m_view->visualRect(current), message);
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
    const QModelIndexList selected = m_view->selectionModel()->selectedRows();
    return selected.isEmpty() ? nullptr : m_model->field(selected.front());
}
