#include "orvane/app/problems/ProblemPanel.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/compare/CopyJob.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/problems/LiveCheck.h"
#include "orvane/app/problems/MendCommand.h"
#include "orvane/app/problems/ProblemModel.h"
#include "orvane/app/problems/ProblemText.h"
#include "orvane/app/problems/SeverityIcons.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStackedLayout>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr std::array severities{NxSeverity::Error, NxSeverity::Warning, NxSeverity::Information};

/// Such as "1 error" or "3 warnings".
QString countText(std::size_t count, NxSeverity severity)
{
    const QString number = orvane::countText(count);
    if (severity == NxSeverity::Error)
        return count == 1 ? ProblemPanel::tr("1 error") : ProblemPanel::tr("%1 errors").arg(number);
    if (severity == NxSeverity::Warning)
        return count == 1 ? ProblemPanel::tr("1 warning") : ProblemPanel::tr("%1 warnings").arg(number);
    return ProblemPanel::tr("%1 information").arg(number);
}

/// Shortens sentences at their ends, and leaves paths to the view.
class SentenceDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideRight;
    }
};

} // namespace

ProblemPanel::ProblemPanel(LiveCheck& check, OrvServices& services, JobBar& jobBar, QWidget* parent)
    : QWidget(parent)
    , m_check(check)
    , m_services(services)
    , m_jobBar(jobBar)
    , m_model(new ProblemModel(this))
    , m_view(new RowTable(this))
    , m_filter(new QLineEdit(this))
    , m_goTo(new QAction(this))
    , m_mend(new QAction(this))
    , m_mendKind(new QAction(this))
    , m_again(new QAction(this))
    , m_text(new QLabel(this))
    , m_pages(new QStackedLayout)
{
    orvane::followLanguage(this, [this] {
        m_goTo->setText(tr("&Go to Field"));
        m_mend->setText(tr("&Mend"));
        m_mendKind->setText(tr("Mend All of This &Kind"));
        m_again->setText(tr("Check A&gain"));
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* top = new QWidget(this);
    buildTopLine(top);
    layout->addWidget(top);
    buildView();
    m_text->setObjectName(QStringLiteral("problemText"));
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setForegroundRole(QPalette::PlaceholderText);
    m_pages->addWidget(m_text);
    m_pages->addWidget(m_view);
    layout->addLayout(m_pages, 1);
    setFocusProxy(m_view);
    updateIcons();
    connect(&check, &LiveCheck::replaced, this, &ProblemPanel::replaceCheck);
    connect(&check, &LiveCheck::changed, m_model, &ProblemModel::update);
    connect(&check, &LiveCheck::settledChanged, this, &ProblemPanel::update);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_model, signal, this, &ProblemPanel::update);
    connect(m_model, &QAbstractItemModel::modelReset, this, &ProblemPanel::update);
    replaceCheck();
    orvane::followLanguage(this, [this] { update(); });
}

ProblemPanel::~ProblemPanel() = default;

void ProblemPanel::buildTopLine(QWidget* page)
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* line = new QHBoxLayout(page);
    line->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    line->setSpacing(unit);
    for (const NxSeverity severity : severities)
        addSeverity(page, severity);
    m_filter->setObjectName(QStringLiteral("problemFilter"));
    orvane::followLanguage(this, [this] {
        m_filter->setPlaceholderText(tr("Filter"));
        m_filter->setAccessibleName(tr("Filter"));
        m_filter->setToolTip(
            tr("Shows the problems that contain all of these words: in the sentence, the names on the way "
               "to the node, its class, or the identifier"));
    });
    m_filter->setClearButtonEnabled(true);
    m_filter->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    connect(m_filter, &QLineEdit::textChanged, m_model, &ProblemModel::setFilter);
    line->addWidget(m_filter, 1);
    const auto addButton = [&](QAction* action, const char* name) {
        auto* button = new QToolButton(page);
        button->setObjectName(QLatin1String(name));
        button->setDefaultAction(action);
        line->addWidget(button);
    };
    m_mend->setObjectName(QStringLiteral("problems.mend"));
    orvane::followLanguage(this, [this] {
        m_mend->setStatusTip(tr("Mends the selected problems as one step"));
        m_mendKind->setStatusTip(tr("Mends all problems of the kind of the selected one as one step"));
        m_again->setStatusTip(tr("Checks the whole scene again, and looks at its files again"));
    });
    m_mendKind->setObjectName(QStringLiteral("problems.mendKind"));
    m_again->setObjectName(QStringLiteral("problems.checkAgain"));
    addButton(m_mend, "mendProblem");
    addButton(m_mendKind, "mendKind");
    addButton(m_again, "checkAgain");
    orvane::followLanguage(
        this, [this] { m_again->setToolTip(tr("Checks the whole scene again, and looks at its files again")); });
    connect(m_mend, &QAction::triggered, this, &ProblemPanel::mendSelected);
    connect(m_mendKind, &QAction::triggered, this, &ProblemPanel::mendKind);
    connect(m_again, &QAction::triggered, &m_check, &LiveCheck::restart);
}

void ProblemPanel::addSeverity(QWidget* page, NxSeverity severity)
{
    auto* button = new QToolButton(page);
    button->setObjectName(orvane::severityName(severity) + QStringLiteral("Problems"));
    button->setCheckable(true);
    button->setChecked(true);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(
        button, &QToolButton::toggled, this, [this, severity](bool isShown) { m_model->setShown(severity, isShown); });
    page->layout()->addWidget(button);
    m_severities[static_cast<std::size_t>(severity)] = button;
}

void ProblemPanel::buildView()
{
    m_view->setObjectName(QStringLiteral("problemTable"));
    orvane::followLanguage(this, [this] { m_view->setAccessibleName(tr("Problems")); });
    m_view->setModel(m_model);
    m_view->setItemDelegateForColumn(ProblemModel::SentenceColumn, new SentenceDelegate(m_view));
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    constexpr int leastCharacters = 16;
    m_view->setColumns({{leastCharacters, 0.52}, {leastCharacters, 0.3}, {}});
    orvane::followLanguage(
        this, [this] { m_goTo->setStatusTip(tr("Selects the node and the field of the selected problem")); });
    m_goTo->setObjectName(QStringLiteral("problems.goTo"));
    connect(m_goTo, &QAction::triggered, this, [this] {
        if (const std::vector<int> rows = m_view->selectedRows(); !rows.empty())
            choose(rows.front());
    });
    m_view->addActions({m_goTo, m_mend, m_mendKind});
    m_view->addCopyActions(QStringLiteral("problems"));
    connect(m_view, &RowTable::copyRequested, this, &ProblemPanel::copy);
    connect(m_view, &RowTable::rowChosen, this, &ProblemPanel::choose);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ProblemPanel::updateActions);
}

void ProblemPanel::replaceCheck()
{
    m_copying.reset();
    const NxSceneCheck* const check = m_check.check();
    m_model->setCheck(check, check == nullptr ? nullptr : m_services.document().root());
    update();
}

QString ProblemPanel::stateText() const
{
    const NxSceneCheck* const check = m_check.check();
    if (check == nullptr)
        return tr("No scene is open.");
    if (!m_check.isSettled())
        return tr("Checking the scene… %1 nodes so far").arg(orvane::countText(check->nodeCount()));
    const bool hasProblems = std::any_of(
        severities.begin(), severities.end(), [check](NxSeverity severity) { return check->count(severity) > 0; });
    if (hasProblems && m_model->hidesRows())
        return tr("The filter hides all problems.");
    return hasProblems ? QString() : tr("No problems were found.");
}

void ProblemPanel::update()
{
    const NxSceneCheck* const check = m_check.check();
    for (const NxSeverity severity : severities) {
        QToolButton* const button = m_severities[static_cast<std::size_t>(severity)];
        const std::size_t count = check == nullptr ? 0 : check->count(severity);
        button->setText(QString::number(count));
        button->setAccessibleName(countText(count, severity));
        button->setToolTip(tr("%1, shown or hidden by this button").arg(countText(count, severity)));
    }
    const bool isEmpty = m_model->rowCount() == 0;
    m_text->setText(stateText());
    m_pages->setCurrentIndex(isEmpty ? 0 : 1);
    m_again->setEnabled(check != nullptr);
    m_again->setToolTip(
        check != nullptr ? tr("Checks the whole scene again, and looks at its files again") : tr("No scene is open."));
    updateActions();
    Q_EMIT countsChanged();
}

void ProblemPanel::updateActions()
{
    const std::vector<int> rows = m_view->selectedRows();
    const NxSceneProblem* const first = rows.empty() ? nullptr : m_model->problem(rows.front());
    const bool canMend = std::any_of(rows.begin(), rows.end(), [this](int row) {
        const NxSceneProblem* const problem = m_model->problem(row);
        return problem != nullptr && problem->isMendable;
    });
    const QString reason = rows.empty() ? tr("Select a problem to mend it.")
        : !canMend                      ? tr("There is no safe mend for this problem.")
        : !m_check.isSettled()          ? tr("The scene is still being checked.")
                                        : QString();
    orvane::setReason(*m_goTo, rows.empty() ? tr("Select a problem first.") : QString());
    m_mend->setEnabled(reason.isEmpty());
    m_mend->setToolTip(!reason.isEmpty() ? reason
            : rows.size() == 1           ? orvane::mendText(*first)
                                         : tr("Mends the selected problems as one step"));
    const bool hasMend = first != nullptr && !first->about().mend.empty();
    m_mendKind->setEnabled(hasMend && m_check.isSettled());
    m_mendKind->setToolTip(!m_mendKind->isEnabled()
            ? reason
            : tr("Mends all problems of the scene with the identifier %1 as one step")
                  .arg(orvane::identifierOf(*first)));
}

void ProblemPanel::updateIcons()
{
    const int size = orvane::look::iconSize(fontMetrics());
    m_view->setIconSize(QSize(size, size));
    for (const NxSeverity severity : severities) {
        QToolButton* const button = m_severities[static_cast<std::size_t>(severity)];
        button->setIcon(orvane::severityIcon(severity));
        button->setIconSize(QSize(size, size));
    }
}

void ProblemPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        updateIcons();
    QWidget::changeEvent(event);
}

void ProblemPanel::choose(int row)
{
    if (const NxSceneProblem* const problem = m_model->problem(row)) {
        // A copy, since a slot may change the scene.
        const NxSceneProblem chosenProblem = *problem;
        Q_EMIT chosen(chosenProblem);
    }
}

void ProblemPanel::mendSelected()
{
    std::vector<NxSceneProblem> problems;
    for (const int row : m_view->selectedRows()) {
        const NxSceneProblem* const problem = m_model->problem(row);
        if (problem != nullptr && problem->isMendable)
            problems.push_back(*problem);
    }
    mend(std::move(problems));
}

void ProblemPanel::mendKind()
{
    const std::vector<int> rows = m_view->selectedRows();
    const NxSceneProblem* const first = rows.empty() ? nullptr : m_model->problem(rows.front());
    if (first != nullptr)
        mend(m_model->allOfKind(first->kind));
}

void ProblemPanel::mend(std::vector<NxSceneProblem> problems)
{
    const auto isLeft = [](const NxSceneProblem& problem) { return !problem.isMendable; };
    problems.erase(std::remove_if(problems.begin(), problems.end(), isLeft), problems.end());
    if (problems.empty() || !m_check.isSettled())
        return;
    const QString one = orvane::mendText(problems.front());
    const QString label = problems.size() == 1 ? tr("Mend: %1").arg(one)
                                               : tr("Mend %1 problems").arg(orvane::countText(problems.size()));
    const NxSceneMend::Undo undo = m_services.isUndoExact() ? NxSceneMend::Undo::ByJournal : NxSceneMend::Undo::ByMend;
    m_services.pushStep(new MendCommand(std::move(problems), undo), label);
}

void ProblemPanel::copy(const std::vector<int>& rows)
{
    std::vector<NxSceneProblem> copied;
    copied.reserve(rows.size());
    for (const int row : rows) {
        if (const NxSceneProblem* const problem = m_model->problem(row))
            copied.push_back(*problem);
    }
    if (copied.empty())
        return;
    const auto count = static_cast<int>(copied.size());
    m_copying = std::make_unique<CopyJob>(count, [this, copied = std::move(copied)](int number) {
        return m_model->line(copied[static_cast<std::size_t>(number)]);
    });
    m_jobBar.watch(m_copying.get(), tr("Copying %1 problems").arg(orvane::countText(count)));
    m_copying->start();
}
