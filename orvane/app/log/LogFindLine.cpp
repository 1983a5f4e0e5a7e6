#include "orvane/app/log/LogFindLine.h"

#include "orvane/app/base/UserLocale.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/log/LogDelegate.h"
#include "orvane/app/log/LogSearch.h"
#include "orvane/app/log/LogView.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/look/Symbols.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

LogFindLine::LogFindLine(LogSearch& search, LogDelegate& delegate, LogView& view, QWidget* parent)
    : QWidget(parent)
    , m_search(search)
    , m_delegate(delegate)
    , m_view(view)
    , m_text(new QLineEdit(this))
    , m_count(new QLabel(this))
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    line->setSpacing(unit);
    m_text->setObjectName(QStringLiteral("logFind"));
    m_text->setClearButtonEnabled(true);
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    line->addWidget(m_text, 1);
    m_count->setObjectName(QStringLiteral("logHits"));
    m_count->setTextFormat(Qt::PlainText);
    line->addWidget(m_count);
    m_previous = addButton("previousHit", Qt::UpArrow, &LogFindLine::goToPrevious);
    m_next = addButton("nextHit", Qt::DownArrow, &LogFindLine::goToNext);
    m_close = addButton("closeFind", Qt::NoArrow, &LogFindLine::end);
    m_close->setIcon(orvane::look::symbol(QStringLiteral("close")));
    connect(m_text, &QLineEdit::textChanged, this, &LogFindLine::search);
    connect(&search, &LogSearch::changed, this, &LogFindLine::showCount);
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, &LogFindLine::showCount);
    orvane::followLanguage(this, [this] { setTexts(); });
    hide();
}

QToolButton* LogFindLine::addButton(const char* name, Qt::ArrowType arrow, void (LogFindLine::*run)())
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setArrowType(arrow);
    connect(button, &QToolButton::clicked, this, run);
    layout()->addWidget(button);
    return button;
}

void LogFindLine::setTexts()
{
    m_text->setPlaceholderText(tr("Find"));
    m_text->setAccessibleName(tr("Find"));
    m_text->setToolTip(tr("Marks the rows that contain this text; the rows around them stay"));
    const auto setText = [](QToolButton* button, const QString& text) {
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    setText(m_previous, tr("Previous hit"));
    setText(m_next, tr("Next hit"));
    setText(m_close, tr("Close"));
    showCount();
}

void LogFindLine::begin()
{
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
    search(m_text->text());
}

void LogFindLine::search(const QString& text)
{
    m_delegate.setSearch(text);
    m_search.setText(text);
    m_view.viewport()->update();
    // The first hit from the current row on, as long as the text is typed.
    if (!text.isEmpty() && !m_search.isHit(m_view.currentIndex().row()))
        goTo(m_search.next(m_view.currentIndex().row()));
}

void LogFindLine::goToNext()
{
    goTo(m_search.next(m_view.currentIndex().row()));
}

void LogFindLine::goToPrevious()
{
    goTo(m_search.previous(m_view.currentIndex().row()));
}

void LogFindLine::goTo(int row)
{
    if (row >= 0)
        m_view.goTo(row);
}

void LogFindLine::showCount()
{
    const QString count = orvane::countText(m_search.hitCount());
    const int row = m_view.currentIndex().row();
    m_count->setText(m_search.text().isEmpty() ? QString()
            : m_search.hitCount() == 0         ? tr("No hits")
            : m_search.isHit(row)              ? tr("%1 of %2").arg(orvane::countText(m_search.hitsUpTo(row)), count)
                                               : tr("%1 hits").arg(count));
}

void LogFindLine::end()
{
    m_delegate.setSearch({});
    m_search.setText({});
    m_view.viewport()->update();
    hide();
    m_view.setFocus(Qt::OtherFocusReason);
}

void LogFindLine::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        end();
    else if (isReturn && event->modifiers().testFlag(Qt::ShiftModifier))
        goToPrevious();
    else if (isReturn)
        goToNext();
    else
        QWidget::keyPressEvent(event);
}
