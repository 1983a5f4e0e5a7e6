#include "orvane/app/history/HistoryPanel.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/history/HistoryModel.h"
#include "orvane/app/history/PutBack.h"
#include "orvane/app/history/StepTravel.h"
#include "orvane/app/input/FilterLine.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <utility>

namespace {

const QString putBackTopic = QStringLiteral("putBack");

QString memoryText(std::size_t bytes)
{
    return orvane::sizeText(static_cast<qlonglong>(bytes));
}

} // namespace

HistoryPanel::HistoryPanel(OrvServices& services, StepTravel& travel, MessageBar& messages, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_travel(travel)
    , m_messages(messages)
    , m_model(new HistoryModel(services, this))
    , m_view(new RowTable(this))
    , m_filter(new FilterLine(meridane::Query::Subject::Rows, this))
    , m_goTo(new QAction(this))
    , m_putBack(new QAction(this))
    , m_putBackButton(new QToolButton(this))
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_place(new QLabel(this))
    , m_memory(new QLabel(this))
{
    orvane::followLanguage(this, [this] {
        m_goTo->setText(tr("&Go to This State"));
        m_putBack->setText(tr("&Put This Value Back"));
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* top = new QWidget(this);
    buildTopLine(top);
    layout->addWidget(top);
    buildView();
    layout->addWidget(m_view, 1);
    auto* bottom = new QWidget(this);
    buildBottomLine(bottom);
    layout->addWidget(bottom);
    setFocusProxy(m_view);

    // Thousands of steps may be undone at once.
    m_update.setSingleShot(true);
    connect(&m_update, &QTimer::timeout, this, &HistoryPanel::update);
    const auto updateSoon = [this] { m_update.start(0); };
    connect(&services.steps(), &OrvStepList::updated, this, updateSoon);
    connect(&travel, &StepTravel::ended, this, updateSoon);
    connect(m_model, &HistoryModel::filtered, this, updateSoon);
    orvane::followLanguage(this, [this] { update(); });
}

HistoryPanel::~HistoryPanel() = default;

void HistoryPanel::buildTopLine(QWidget* page)
{
    auto* line = new QHBoxLayout(page);
    line->setContentsMargins(8, 4, 8, 4);
    m_filter->setObjectName(QStringLiteral("historyFilter"));
    orvane::followLanguage(this, [this] {
        m_filter->setToolTip(
            tr("Shows the steps that contain these words: in their name, or in a value. not, or, brackets, "
               "\"texts with blanks\" and /regular expressions/ may be used."));
    });
    m_filter->setMaximumWidth(fontMetrics().averageCharWidth() * 50);
    connect(m_filter, &FilterLine::queryChanged, m_model, &HistoryModel::setFilter);
    connect(m_filter, &FilterLine::left, m_view, [this] { m_view->setFocus(); });
    line->addWidget(m_filter, 1);
    line->addStretch();
    m_memory->setObjectName(QStringLiteral("historyMemory"));
    orvane::followLanguage(this, [this] {
        m_memory->setToolTip(
            tr("Beyond this limit the oldest steps are dropped. The preference ORVANE_HISTORY sets it."));
    });
    line->addWidget(m_memory);
    m_putBackButton->setObjectName(QStringLiteral("putValueBack"));
    m_putBackButton->setDefaultAction(m_putBack);
    line->addWidget(m_putBackButton);
}

void HistoryPanel::buildView()
{
    m_view->setObjectName(QStringLiteral("historyTable"));
    orvane::followLanguage(this, [this] { m_view->setAccessibleName(tr("History")); });
    m_view->setModel(m_model);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    constexpr int stateCharacters = 15;
    constexpr int timeCharacters = 15;
    m_view->setColumns({{stateCharacters}, {14, 0.44}, {8, 0.28}, {8, 0.28}, {timeCharacters}});
    m_view->choosesByClick();
    m_goTo->setObjectName(QStringLiteral("history.goTo"));
    orvane::followLanguage(this, [this] {
        m_goTo->setStatusTip(tr("Undoes or redoes the steps up to the selected one"));
        m_putBack->setStatusTip(
            tr("Writes the value from before the selected step, without undoing what came after it"));
    });
    m_putBack->setObjectName(QStringLiteral("history.putBack"));
    m_view->addActions({m_goTo, m_putBack});
    connect(m_view, &RowTable::rowChosen, this, &HistoryPanel::goToRow);
    connect(m_goTo, &QAction::triggered, this, [this] { goToRow(m_view->currentIndex().row()); });
    connect(m_putBack, &QAction::triggered, this, &HistoryPanel::putBack);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &HistoryPanel::updateActions);
    connect(m_model, &QAbstractItemModel::modelReset, this, &HistoryPanel::updateActions);
}

void HistoryPanel::buildBottomLine(QWidget* page)
{
    auto* line = new QHBoxLayout(page);
    line->setContentsMargins(8, 4, 8, 4);
    m_slider->setObjectName(QStringLiteral("historySlider"));
    orvane::followLanguage(this, [this] {
        m_slider->setAccessibleName(tr("Time"));
        m_slider->setToolTip(tr("Goes through all states of the scene"));
    });
    connect(m_slider, &QSlider::valueChanged, &m_travel, &StepTravel::goTo);
    // The end of the travel may be behind the pointer.
    connect(m_slider, &QSlider::sliderReleased, this, &HistoryPanel::update);
    line->addWidget(m_slider, 1);
    m_place->setObjectName(QStringLiteral("historyPlace"));
    line->addWidget(m_place);
}

void HistoryPanel::update()
{
    const OrvStepList& steps = m_services.steps();
    const int position = steps.position();
    // While the user drags the slider, it shows where the user wants to go.
    if (!m_slider->isSliderDown()) {
        const QSignalBlocker blocker(m_slider);
        m_slider->setRange(0, steps.count());
        m_slider->setPageStep(qMax(1, steps.count() / 10));
        m_slider->setValue(m_travel.isUnderway() ? m_travel.goal() : position);
    }
    m_slider->setEnabled(steps.count() > 0);
    m_place->setText(steps.count() == 0
            ? tr("Each edit of the scene is listed here")
            : tr("Step %1 of %2").arg(orvane::countText(position), orvane::countText(steps.count())));
    const QString count = steps.count() == 1 ? tr("1 step") : tr("%1 steps").arg(orvane::countText(steps.count()));
    m_memory->setText(tr("%1, %2 of %3").arg(count, memoryText(steps.bytes()), memoryText(steps.limit())));
    if (std::exchange(m_shownPosition, position) != position) {
        const int row = m_model->rowOf(position);
        if (row >= 0)
            m_view->scrollTo(m_model->index(row, 0));
    }
    updateActions();
}

int HistoryPanel::selectedPosition() const
{
    const std::vector<int> rows = m_view->selectedRows();
    return rows.empty() ? -1 : m_model->positionOf(rows.front());
}

void HistoryPanel::updateActions()
{
    const int position = selectedPosition();
    orvane::setReason(*m_goTo,
        position < 0                                    ? tr("Select a step of the history first.")
            : position == m_services.steps().position() ? tr("The scene is in this state.")
                                                        : QString());
    const QString reason = orvane::whyNotPutBack(m_services.steps(), position - 1);
    m_putBack->setEnabled(reason.isEmpty());
    m_putBack->setToolTip(reason.isEmpty()
            ? tr("Writes the value from before the selected step, without undoing what came after it")
            : reason);
}

void HistoryPanel::goToRow(int row)
{
    if (row >= 0)
        m_travel.goTo(m_model->positionOf(row));
}

void HistoryPanel::putBack()
{
    m_messages.clearTopic(putBackTopic);
    const auto history = m_model->history();
    if (!history)
        return;
    const orvane::Result<> result = orvane::putBack(m_services, *history, selectedPosition() - 1);
    if (!result)
        m_messages.showMessage(MessageBar::Severity::Information, result.error(), putBackTopic);
}
