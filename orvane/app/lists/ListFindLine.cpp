#include "orvane/app/lists/ListFindLine.h"

#include "orvane/app/input/InputMessage.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/ShownRows.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/look/Look.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

ListFindLine::ListFindLine(ListModel& model, ListView& view, ShownRows& shown, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_view(view)
    , m_shown(shown)
{
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(2 * orvane::look::unit(fontMetrics()));
    constexpr int numberCharacters = 9;
    constexpr int rangeCharacters = 9;
    m_goTo = addLine("listGoTo", QT_TR_NOOP("Go to row"),
        QT_TR_NOOP("The number of a row, counted from 0; from the end of the list if it is negative. Several are "
                   "selected by a range such as 10:20."),
        numberCharacters);
    m_range = addLine("listRange", QT_TR_NOOP("Range"),
        QT_TR_NOOP(
            "Shows the rows of a range: 0:5000, 10:, -5: for the last five, ::2 for every other one, ::-1 backwards"),
        rangeCharacters);
    m_filter = addLine("listFilter", QT_TR_NOOP("Filter"), nullptr, 0);
    connect(m_goTo, &QLineEdit::returnPressed, this, &ListFindLine::goToRow);
    connect(m_range, &QLineEdit::editingFinished, this, &ListFindLine::setRange);
    connect(m_filter, &QLineEdit::editingFinished, this, &ListFindLine::setFilter);
    // The button that clears a line takes effect at once.
    for (QLineEdit* const edit : {m_range, m_filter})
        connect(edit, &QLineEdit::textChanged, this, [this, edit](const QString& text) {
            if (text.isEmpty())
                edit == m_range ? setRange() : setFilter();
        });
    connect(
        &shown, &ShownRows::failed, this, [this](const QString& message) { InputMessage::showFor(m_filter, message); });
    connect(&model, &ListModel::listAboutToBeLeft, this, &ListFindLine::clear);
    connect(&model, &ListModel::modelReset, this, &ListFindLine::nameColumns);
    orvane::followLanguage(this, [this] { nameColumns(); });
}

QLineEdit* ListFindLine::addLine(const char* name, const char* title, const char* toolTip, int characters)
{
    auto* const edit = new QLineEdit(this);
    edit->setObjectName(QLatin1String(name));
    orvane::followLanguage(edit, [edit, title, toolTip] {
        edit->setPlaceholderText(tr(title));
        edit->setAccessibleName(tr(title));
        if (toolTip != nullptr)
            edit->setToolTip(tr(toolTip));
    });
    edit->setClearButtonEnabled(true);
    if (characters > 0)
        edit->setFixedWidth(characters * fontMetrics().averageCharWidth() + fontMetrics().height());
    static_cast<QHBoxLayout*>(layout())->addWidget(edit, characters > 0 ? 0 : 1);
    return edit;
}

void ListFindLine::beginGoTo()
{
    m_goTo->setFocus(Qt::ShortcutFocusReason);
    m_goTo->selectAll();
}

void ListFindLine::beginFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

void ListFindLine::nameColumns()
{
    const ListColumns& columns = m_model.columns();
    if (!columns.isNumeric() || columns.kind() == ListColumns::Kind::Choice) {
        m_filter->setToolTip(tr("Shows the rows whose text has these words"));
        return;
    }
    const std::vector<std::string> names = columns.variables();
    QStringList known;
    for (const std::string& name : names)
        known.append(QString::fromStdString(name));
    m_filter->setToolTip(
        tr("Shows the rows for which a formula is true, such as %1 > 0 and i < 100. It knows %2, and i, "
           "the number of the row.")
            .arg(known.front(), known.join(QStringLiteral(", "))));
}

void ListFindLine::clear()
{
    for (QLineEdit* const edit : {m_goTo, m_range, m_filter}) {
        const QSignalBlocker blocker(edit);
        edit->clear();
        InputMessage::clear(edit);
    }
}

void ListFindLine::goToRow()
{
    const auto range = RowRange::parse(m_goTo->text());
    if (!range) {
        InputMessage::showFor(m_goTo, range.error());
        return;
    }
    if (m_goTo->text().trimmed().isEmpty())
        return;
    const RowRange::Rows rows = range.value().rows(m_model.listCount());
    if (rows.count == 0) {
        InputMessage::showFor(m_goTo,
            m_model.listCount() == 0
                ? tr("The list is empty.")
                : tr("There is no such row; the list has rows 0 to %1.").arg(m_model.listCount() - 1));
        return;
    }
    const bool isRun = rows.step == 1 || rows.step == -1;
    if (!isRun) {
        InputMessage::showFor(m_goTo, tr("Rows with gaps can't be selected. Show them alone with the line Range."));
        return;
    }
    const int first = rows.step > 0 ? rows.first : rows.first - rows.count + 1;
    if (m_model.map().placeOf(first) < 0) {
        InputMessage::showFor(m_goTo, tr("Row %1 isn't among those that are shown.").arg(first));
        return;
    }
    m_view.selectListRows({{first, rows.count}});
    m_view.setFocus(Qt::OtherFocusReason);
}

void ListFindLine::setRange()
{
    if (const auto result = m_shown.setRange(m_range->text()); !result)
        InputMessage::showFor(m_range, result.error());
}

void ListFindLine::setFilter()
{
    if (const auto result = m_shown.setFilter(m_filter->text()); !result)
        InputMessage::showFor(m_filter, result.error());
}
