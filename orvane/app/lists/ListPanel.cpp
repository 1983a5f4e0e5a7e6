#include "orvane/app/lists/ListPanel.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/lists/ListActions.h"
#include "orvane/app/lists/ListClipboard.h"
#include "orvane/app/lists/ListDelegate.h"
#include "orvane/app/lists/ListFindLine.h"
#include "orvane/app/lists/ListSelection.h"
#include "orvane/app/lists/ListSetLine.h"
#include "orvane/app/lists/ListStatistics.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/ShownRows.h"
#include "orvane/app/lists/rows/ListEdits.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/settings/SettingActions.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxMField.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStackedLayout>
#include <QToolButton>

#include <algorithm>

namespace {

const QString listStatisticsKey = QStringLiteral("lists/statistics");

QString listTypeText(const NxMField& list)
{
    const QString name = orvane::toQString(list.getTypeId().getName());
    return name.startsWith(QLatin1String("MF")) ? name.mid(2) : name;
}

} // namespace

ListPanel::ListPanel(OrvServices& services, AppSettings& settings, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_settings(settings)
    , m_model(new ListModel(services.document(), this))
    , m_edits(std::make_unique<ListEdits>(services, *m_model))
    , m_view(new ListView(*m_model, this))
    , m_delegate(new ListDelegate(*m_model, *m_edits, this))
    , m_messages(new MessageBar(this))
    , m_jobBar(new JobBar(this))
    , m_shown(new ShownRows(*m_model, *m_jobBar, this))
    , m_clipboard(new ListClipboard(*m_model, *m_view, *m_edits, *m_jobBar, this))
    , m_find(new ListFindLine(*m_model, *m_view, *m_shown, this))
    , m_set(new ListSetLine(*m_model, *m_view, *m_edits, *m_jobBar, this))
    , m_statistics(new ListStatistics(*m_model, *m_view, *m_jobBar, this))
    , m_chooser(new QComboBox(this))
    , m_counts(new QLabel(this))
    , m_pages(new QStackedLayout(this))
{
    setObjectName(QStringLiteral("listPanel"));
    m_view->setItemDelegate(m_delegate);
    new ListSelection(*m_model, m_view);
    auto* const hint = new QLabel(this);
    orvane::followLanguage(
        hint, [hint] { hint->setText(tr("Select a list field, such as the positions of a mesh, to see its rows.")); });
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    m_pages->addWidget(hint);
    auto* const page = new QWidget(this);
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(buildTop());
    layout->addWidget(m_messages);
    layout->addWidget(buildMiddle(), 1);
    layout->addWidget(buildBottom());
    m_pages->addWidget(page);
    setFocusProxy(m_view);
    connectParts();
    followSelection();
    orvane::followLanguage(this, [this] { updateCounts(); });
}

ListPanel::~ListPanel() = default;

NxMField* ListPanel::list() const
{
    return m_model->list();
}

QWidget* ListPanel::buildTop()
{
    auto* const top = new QWidget(this);
    auto* const line = new QHBoxLayout(top);
    const int unit = orvane::look::unit(fontMetrics());
    line->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    line->setSpacing(2 * unit);
    m_chooser->setObjectName(QStringLiteral("listChooser"));
    orvane::followLanguage(this, [this] { m_chooser->setAccessibleName(tr("List")); });
    m_chooser->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    line->addWidget(m_chooser);
    line->addWidget(m_find, 1);
    auto* const actions = new ListActions(*m_model, m_view, *m_edits, *m_clipboard, *m_messages);
    addButton(line, actions->insertAction(), QStringLiteral("+"));
    addButton(line, actions->removeAction(), QString(QChar(0x2212)));
    addButton(line, actions->moveUpAction(), QString(QChar(0x2191)));
    addButton(line, actions->moveDownAction(), QString(QChar(0x2193)));
    auto* const statistics = new QAction(this);
    statistics->setObjectName(QStringLiteral("list.showStatistics"));
    orvane::followLanguage(statistics, [statistics] {
        statistics->setText(tr("&Statistics"));
        statistics->setStatusTip(tr("Shows smallest, largest and mean values beside the rows"));
    });
    statistics->setCheckable(true);
    orvane::followSwitch(SettingsStore::of(m_settings), listStatisticsKey, statistics);
    connect(statistics, &QAction::toggled, this, &ListPanel::showStatistics);
    auto* const menuButton = new QToolButton(top);
    menuButton->setObjectName(QStringLiteral("listMenuButton"));
    orvane::followLanguage(menuButton, [menuButton] { menuButton->setText(tr("Rows")); });
    menuButton->setPopupMode(QToolButton::InstantPopup);
    auto* const menu = new QMenu(menuButton);
    menu->addActions(actions->all());
    menu->addSeparator();
    menu->addAction(statistics);
    menuButton->setMenu(menu);
    line->addWidget(menuButton);
    showStatistics(statistics->isChecked());
    return top;
}

void ListPanel::addButton(QHBoxLayout* line, QAction* action, const QString& iconText)
{
    auto* const button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    orvane::followLanguage(button, [button, action, iconText] {
        action->setIconText(iconText);
        button->setAccessibleName(action->text().remove(u'&'));
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        const QString reason = orvane::reasonOf(*action);
        const QString text = action->text().remove(u'&');
        button->setToolTip(!reason.isEmpty() ? reason : keys.isEmpty() ? text : tr("%1 (%2)").arg(text, keys));
    });
    line->addWidget(button);
}

QWidget* ListPanel::buildMiddle()
{
    auto* const middle = new QSplitter(this);
    middle->setObjectName(QStringLiteral("listSplitter"));
    middle->setChildrenCollapsible(false);
    middle->addWidget(m_view);
    middle->addWidget(m_statistics);
    middle->setStretchFactor(0, 3);
    middle->setStretchFactor(1, 2);
    return middle;
}

QWidget* ListPanel::buildBottom()
{
    auto* const bottom = new QWidget(this);
    auto* const line = new QHBoxLayout(bottom);
    const int unit = orvane::look::unit(fontMetrics());
    line->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    line->setSpacing(4 * unit);
    m_counts->setObjectName(QStringLiteral("listCounts"));
    line->addWidget(m_counts);
    line->addWidget(m_jobBar);
    line->addWidget(m_set, 1);
    return bottom;
}

void ListPanel::connectParts()
{
    const auto addKey
        = [this](const char* name, const char* text, const char* statusTip, const QKeySequence& key, const auto& run) {
              auto* const action = new QAction(this);
              orvane::followLanguage(action, [action, text, statusTip] {
                  action->setText(tr(text));
                  action->setStatusTip(tr(statusTip));
              });
              action->setObjectName(QLatin1String(name));
              action->setShortcut(key);
              action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
              connect(action, &QAction::triggered, this, run);
              addAction(action);
          };
    addKey("list.beginGoTo", QT_TR_NOOP("Go to Row"), QT_TR_NOOP("Types the number of a row to go to"),
        Qt::CTRL | Qt::Key_G, [this] { m_find->beginGoTo(); });
    addKey("list.beginFilter", QT_TR_NOOP("Filter Rows"), QT_TR_NOOP("Types what the shown rows contain"),
        QKeySequence::Find, [this] { m_find->beginFilter(); });
    addKey("list.beginSet", QT_TR_NOOP("Set Column"), QT_TR_NOOP("Types a formula for the values of a column"),
        Qt::CTRL | Qt::Key_Equal, [this] { m_set->begin(); });
    connect(m_view->horizontalHeader(), &QHeaderView::sectionClicked, this, &ListPanel::sortBy);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListPanel::updateCounts);
    connect(m_model, &ListModel::listChanged, this, &ListPanel::updateCounts);
    connect(m_shown, &ShownRows::settled, this, [this] {
        updateCounts();
        showOrder();
    });
    connect(m_delegate, &ListDelegate::moveRequested, m_view, &ListView::moveCurrent);
    connect(m_delegate, &ListDelegate::refused, this, &ListPanel::showMessage);
    connect(m_clipboard, &ListClipboard::failed, this, &ListPanel::showMessage);
    connect(m_clipboard, &ListClipboard::done, m_messages, &MessageBar::clear);
    connect(m_chooser, &QComboBox::activated, this, &ListPanel::chooseField);
    connect(m_model, &ListModel::listAboutToBeLeft, this, [this] {
        if (const QString text = m_delegate->pendingText(); !text.isEmpty())
            showMessage(tr("\"%1\" wasn't written: %2 isn't shown any more.").arg(text.left(80), m_edits->listName()));
    });
    connect(&m_services, &OrvServices::selectedFieldChanged, this, &ListPanel::followSelection);
    connect(&m_services, &OrvServices::selectedNodeChanged, this, &ListPanel::followSelection);
    connect(&m_services.document(), &OrvDocument::aboutToClose, this, [this] { setList(nullptr); });
}

void ListPanel::followSelection()
{
    NxFieldContainer* const node = m_services.getSelectedNode();
    auto* const selected = dynamic_cast<NxMField*>(m_services.getSelectedField());
    NxMField* shown = list();
    if (selected != nullptr && selected->getContainer() != nullptr)
        shown = selected;
    else if (shown != nullptr && shown->getContainer() != node)
        shown = nullptr;
    setList(shown);
}

void ListPanel::setList(NxMField* list)
{
    m_model->setList(list);
    listFields(list != nullptr ? list->getContainer() : nullptr);
    m_pages->setCurrentIndex(list != nullptr ? 1 : 0);
    updateCounts();
    fitColumns();
}

void ListPanel::listFields(NxFieldContainer* node)
{
    m_chooser->clear();
    if (node == nullptr)
        return;
    for (NxField* const field : node->getFields()) {
        auto* const candidate = dynamic_cast<NxMField*>(field);
        if (candidate == nullptr)
            continue;
        m_chooser->addItem(orvane::toQString(node->getFieldName(field)));
        if (candidate == list())
            m_chooser->setCurrentIndex(m_chooser->count() - 1);
    }
}

void ListPanel::chooseField(int item)
{
    if (list() == nullptr)
        return;
    NxFieldContainer* const node = list()->getContainer();
    NxField* const field = node->getField(orvane::toVbName(m_chooser->itemText(item)));
    // Another node can be selected while this list is kept.
    if (field != nullptr && node == m_services.getSelectedNode())
        m_services.selectField(field);
    if (auto* const chosen = dynamic_cast<NxMField*>(field))
        setList(chosen);
}

void ListPanel::sortBy(int column)
{
    RowsJob::Order order = m_shown->order();
    if (order.column != column)
        order = {column, false};
    else if (!order.isDescending)
        order.isDescending = true;
    else
        order = {};
    m_shown->setOrder(order);
    showOrder();
}

void ListPanel::showOrder()
{
    const RowsJob::Order order = m_shown->order();
    m_view->horizontalHeader()->setSortIndicatorShown(order.column >= 0);
    m_view->horizontalHeader()->setSortIndicator(
        order.column, order.isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListPanel::updateCounts()
{
    if (list() == nullptr) {
        m_counts->clear();
        return;
    }
    const int count = m_model->listCount();
    QString text = tr("%1 × %2").arg(orvane::countText(count), listTypeText(*list()));
    if (!m_model->showsAll())
        text += tr(", %1 shown").arg(orvane::countText(m_model->rowCount()));
    if (const int selected = m_view->selectedCount(); selected > 1)
        text += tr(", %1 selected").arg(orvane::countText(selected));
    m_counts->setText(text);
}

void ListPanel::showMessage(const QString& message)
{
    m_messages->showMessage(MessageBar::Severity::Warning, message, QStringLiteral("list"));
}

void ListPanel::showStatistics(bool shows)
{
    m_statistics->setVisible(shows);
}

// Texts get what is there; numbers a width that shows most of them.
void ListPanel::fitColumns()
{
    const bool isText = !m_model->columns().isNumeric() || m_model->columns().kind() == ListColumns::Kind::Choice;
    m_view->horizontalHeader()->setStretchLastSection(isText);
}

int ListPanel::heightFor(int rows) const
{
    int height = m_view->heightFor(rows);
    for (const QWidget* const line : {m_find->parentWidget(), m_set->parentWidget()})
        height += line->sizeHint().height();
    return height;
}
