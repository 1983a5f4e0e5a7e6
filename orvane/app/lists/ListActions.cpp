#include "orvane/app/lists/ListActions.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/ApplicableMenu.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/lists/ListClipboard.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/rows/ListEdits.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/lists/rows/ListRows.h"
#include "orvane/app/messages/MessageBar.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"

#include <QAction>
#include <QInputDialog>

#include <algorithm>
#include <cmath>

namespace {

const QString listResizeTopic = QStringLiteral("listResize");
const QString listEditTopic = QStringLiteral("listEdit");

} // namespace

ListActions::ListActions(
    ListModel& model, ListView* view, ListEdits& edits, ListClipboard& clipboard, MessageBar& messages)
    : QObject(view)
    , m_model(model)
    , m_view(view)
    , m_edits(edits)
    , m_clipboard(clipboard)
    , m_messages(messages)
    , m_insert(add("list.insert", QT_TR_NOOP("&Insert Rows"), Qt::Key_Insert, &ListActions::insert,
          QT_TR_NOOP("Adds rows with default values before the selected ones")))
    , m_duplicate(add("list.duplicate", QT_TR_NOOP("D&uplicate Rows"), Qt::CTRL | Qt::SHIFT | Qt::Key_D,
          &ListActions::duplicate, QT_TR_NOOP("Adds copies of the selected rows behind them")))
    , m_remove(add("list.remove", QT_TR_NOOP("&Delete Rows"), QKeySequence::Delete, &ListActions::remove,
          QT_TR_NOOP("Removes the selected rows")))
    , m_moveUp(add("list.moveUp", QT_TR_NOOP("Move &Up"), Qt::ALT | Qt::Key_Up, &ListActions::moveUp,
          QT_TR_NOOP("Moves the selected rows one place up")))
    , m_moveDown(add("list.moveDown", QT_TR_NOOP("Move D&own"), Qt::ALT | Qt::Key_Down, &ListActions::moveDown,
          QT_TR_NOOP("Moves the selected rows one place down")))
{
    addSeparator();
    m_cut = add("list.cut", QT_TR_NOOP("Cu&t Rows"), QKeySequence::Cut, &ListActions::cut,
        QT_TR_NOOP("Copies the selected rows and removes them"));
    m_copy = add("list.copy", QT_TR_NOOP("&Copy Cells"), QKeySequence::Copy, &ListActions::copy,
        QT_TR_NOOP("Copies the selected cells as text"));
    m_paste = add("list.paste", QT_TR_NOOP("&Paste Cells"), QKeySequence::Paste, &ListActions::paste,
        QT_TR_NOOP("Writes the cells of the clipboard from the current cell on"));
    addSeparator();
    m_fillLinear = add("list.fillLinear", QT_TR_NOOP("Fill &Evenly from First to Last"), {}, &ListActions::fillLinear,
        QT_TR_NOOP(
            "Gives the selected cells of a column values with equal steps between the first and the last of them"));
    m_resize = add("list.resize", QT_TR_NOOP("&Number of Rows…"), {}, &ListActions::resize,
        QT_TR_NOOP("Sets how many rows the list has"));
    view->addActions(m_all);
    orvane::giveApplicableMenu(view);
    connect(view, &ListView::rowsDropped, this, &ListActions::moveTo);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListActions::update);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, &ListActions::update);
    connect(&model, &ListModel::listChanged, this, &ListActions::update);
    connect(&model, &ListModel::modelReset, this, &ListActions::update);
    connect(&model, &ListModel::listAboutToBeLeft, this, [this] { m_messages.clear(); });
    orvane::followLanguage(this, [this] { update(); });
}

QAction* ListActions::add(
    const char* name, const char* text, const QKeySequence& key, void (ListActions::*run)(), const char* statusTip)
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, statusTip] {
        action->setText(tr(text));
        action->setStatusTip(tr(statusTip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    m_all.append(action);
    return action;
}

void ListActions::addSeparator()
{
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    m_all.append(separator);
}

void ListActions::update()
{
    const bool hasList = m_model.list() != nullptr;
    const bool hasRows = m_view->currentIndex().isValid() || m_view->selectionModel()->hasSelection();
    const QString noList = hasList ? QString() : tr("No list is shown.");
    const QString noRows = hasRows ? QString() : tr("Select rows of a list first.");
    for (QAction* const action : {m_insert, m_paste, m_resize})
        orvane::setReason(*action, noList);
    for (QAction* const action : {m_duplicate, m_remove, m_moveUp, m_moveDown, m_cut, m_copy})
        orvane::setReason(*action, noRows);
    const bool canFill = m_view->selectedCount() > 2 && m_model.columns().kind() == ListColumns::Kind::Number;
    orvane::setReason(*m_fillLinear, canFill ? QString() : tr("Select three rows or more of a list of numbers first."));
}

void ListActions::show(const orvane::Result<>& result)
{
    if (result)
        m_messages.clearTopic(listEditTopic);
    else
        m_messages.showMessage(MessageBar::Severity::Warning, result.error(), listEditTopic);
}

void ListActions::insert()
{
    const RowRuns rows = m_view->selectedListRows();
    const int count = std::max(1, m_view->selectedCount());
    const int before = rows.empty() ? m_model.list()->getNum() : rows.front().first;
    show(m_edits.insertRows(before, count));
}

void ListActions::duplicate()
{
    show(m_edits.duplicateRows(m_view->selectedListRows()));
}

void ListActions::remove()
{
    show(m_edits.removeRows(m_view->selectedListRows()));
}

void ListActions::moveUp()
{
    const RowRuns rows = m_view->selectedListRows();
    if (!rows.empty())
        moveTo(rows.front().first - 1);
}

void ListActions::moveDown()
{
    const RowRuns rows = m_view->selectedListRows();
    if (!rows.empty())
        moveTo(rows.back().end() + 1);
}

void ListActions::moveTo(int before)
{
    if (!m_model.showsAll()) {
        show(orvane::Failure{
            tr("Rows can be moved only while all of them are shown in their order. Clear range, filter and sorting.")});
        return;
    }
    const RowRuns rows = m_view->selectedListRows();
    if (before < 0 || before > m_model.list()->getNum() || !orvane::wouldMove(rows, before))
        return;
    const orvane::Result<> result = m_edits.moveRows(rows, before);
    show(result);
    if (!result)
        return;
    int first = before;
    for (const RowRun run : rows)
        first -= std::clamp(before - run.first, 0, run.count);
    const bool isSelected = m_view->selectionModel()->hasSelection();
    const int column = m_view->currentIndex().column();
    if (isSelected)
        m_view->selectPlaces({{first, orvane::rowCount(rows)}}, m_view->selectedColumns());
    else
        m_view->setCurrentIndex(m_model.index(first, column));
}

void ListActions::copy()
{
    m_clipboard.copy();
}

void ListActions::cut()
{
    m_clipboard.cut();
}

void ListActions::paste()
{
    m_clipboard.paste();
}

void ListActions::fillLinear()
{
    const RowRuns places = m_view->selectedPlaces();
    const ListView::Columns columns = m_view->selectedColumns();
    const bool isWhole = m_model.columns().components()->isWhole();
    std::vector<int> rows = orvane::rowsOf(places);
    std::ranges::transform(rows, rows.begin(), [this](int place) { return m_model.map().listRow(place); });
    PastedRows cells{static_cast<int>(rows.size()), columns.last - columns.first + 1, {}, {}};
    for (int column = columns.first; column <= columns.last; ++column) {
        const double first = m_model.columns().number(rows.front(), column);
        const double last = m_model.columns().number(rows.back(), column);
        std::vector<double>& values = cells.numbers.emplace_back();
        values.reserve(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const double value = std::lerp(first, last, static_cast<double>(i) / static_cast<double>(rows.size() - 1));
            values.push_back(isWhole ? std::round(value) : value);
        }
    }
    show(m_edits.setCells(cells, rows, columns.first, ListEdits::Cause::Fill));
}

void ListActions::resize()
{
    auto* const dialog = new QInputDialog(m_view);
    dialog->setObjectName(QStringLiteral("listResizeDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Number of Rows"));
    dialog->setLabelText(tr("Number of rows of %1:").arg(m_edits.listName()));
    dialog->setInputMode(QInputDialog::IntInput);
    dialog->setIntRange(0, NxMField::getMaximumNum());
    dialog->setIntValue(m_model.list()->getNum());
    const NxMField* const list = m_model.list();
    connect(dialog, &QInputDialog::intValueSelected, this, [this, list](int count) {
        if (m_model.list() == list)
            resizeTo(count);
        else
            show(orvane::Failure{tr("Another list is shown now. Nothing was changed.")});
    });
    connect(&m_model, &ListModel::listAboutToBeLeft, dialog, &QDialog::reject);
    dialog->open();
}

void ListActions::resizeTo(int count)
{
    const long long added = static_cast<long long>(count) - m_model.list()->getNum();
    if (count <= ListEdits::manyRows || added <= 0) {
        show(m_edits.resize(count));
        return;
    }
    const QString number = orvane::countText(count);
    m_messages.showQuestion(
        tr("%1 is going to have %2 rows, which need a lot of memory. Go on?").arg(m_edits.listName(), number),
        listResizeTopic, tr("Make %1 Rows").arg(number), [this, count] { show(m_edits.resize(count)); });
}
