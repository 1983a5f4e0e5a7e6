#include "orvane/app/find/FindLine.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/find/FindEdit.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QVBoxLayout>

FindLine::FindLine(QWidget* parent)
    : QWidget(parent)
    , m_edit(new FindEdit(this))
    , m_previous(addButton("findPrevious"))
    , m_next(addButton("findNext"))
    , m_menuButton(addButton("findMenuButton"))
    , m_menu(new QMenu(this))
    , m_status(new QWidget(this))
    , m_count(new QLabel(m_status))
    , m_note(new QLabel(m_status))
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(unit, unit, unit, unit);
    rows->setSpacing(0);
    auto* const line = new QHBoxLayout;
    line->setSpacing(unit);
    line->addWidget(m_edit, 1);
    for (QToolButton* const button : {m_previous, m_next, m_menuButton})
        line->addWidget(button);
    rows->addLayout(line);
    auto* const status = new QHBoxLayout(m_status);
    status->setContentsMargins(unit, unit, unit, 0);
    status->setSpacing(2 * unit);
    status->addWidget(m_count);
    status->addWidget(m_note, 1);
    rows->addWidget(m_status);

    m_edit->setObjectName(QStringLiteral("findEdit"));
    orvane::followLanguage(this, [this] {
        m_edit->setAccessibleName(tr("Find nodes"));
        m_edit->setPlaceholderText(tr("Find nodes"));
        m_edit->setToolTip(
            tr("Words of the name or the class, or a query: t:Light, f:radius >1, changed, unused, missing, "
               "not, or, brackets, /regular expressions/. Return goes to the next hit, Shift+Return to the "
               "previous one, Alt+Return selects all."));
    });
    m_edit->setClearButtonEnabled(true);
    m_menuButton->setText(QStringLiteral("\u22EF"));
    orvane::followLanguage(this, [this] {
        m_menuButton->setToolTip(tr("Searches that are kept"));
        m_menuButton->setAccessibleName(tr("Searches that are kept"));
    });
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    m_menuButton->setMenu(m_menu);
    m_menuButton->setFocusPolicy(Qt::TabFocus);
    m_menu->setObjectName(QStringLiteral("findMenu"));
    m_count->setObjectName(QStringLiteral("findCount"));
    m_note->setObjectName(QStringLiteral("findNote"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setFocusProxy(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, &FindLine::showParts);
    showParts();
}

QToolButton* FindLine::addButton(const char* name)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void FindLine::setActions(QAction* previous, QAction* next)
{
    m_previous->setDefaultAction(previous);
    m_next->setDefaultAction(next);
    m_previous->setArrowType(Qt::UpArrow);
    m_next->setArrowType(Qt::DownArrow);
    for (QToolButton* const button : {m_previous, m_next})
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void FindLine::setCount(const QString& text)
{
    m_count->setText(text);
    m_edit->setAccessibleDescription(text.isEmpty() ? m_edit->toolTip() : text);
}

void FindLine::setNote(const QString& text, Tone tone)
{
    m_noteText = text;
    m_tone = tone;
    showNote();
}

void FindLine::showParts()
{
    const bool isOn = !m_edit->text().isEmpty();
    m_status->setVisible(isOn);
    m_previous->setVisible(isOn);
    m_next->setVisible(isOn);
}

void FindLine::showNote()
{
    const QScopedValueRollback coloring(m_isColoring, true);
    const QColor background = palette().color(QPalette::Window);
    QPalette colors;
    colors.setColor(QPalette::WindowText,
        m_tone == Tone::Error ? orvane::look::textColor(orvane::look::Tint::Error, background)
                              : orvane::look::quietColor(palette().color(QPalette::WindowText), background));
    m_note->setPalette(colors);
    m_note->setText(m_note->fontMetrics().elidedText(m_noteText, Qt::ElideRight, m_note->width()));
    m_note->setToolTip(orvane::plainToolTip(m_noteText));
    m_note->setAccessibleName(m_noteText);
}

void FindLine::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showNote();
}

void FindLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !m_isColoring)
        showNote();
    QWidget::changeEvent(event);
}
