#include "orvane/app/fields/popups/ChoicePopup.h"

#include "orvane/app/base/PlainText.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

bool orvane::hasLettersInOrder(const QString& text, const QString& letters)
{
    qsizetype place = 0;
    return std::all_of(letters.begin(), letters.end(), [&](QChar letter) {
        if (letter.isSpace())
            return true;
        const qsizetype found = text.indexOf(letter, place, Qt::CaseInsensitive);
        place = found + 1;
        return found >= 0;
    });
}

ChoicePopup::ChoicePopup(QWidget* parent)
    : PopupFrame(parent)
    , m_line(new QLineEdit(this))
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("choicePopup"));
    setAccessibleName(tr("Choices"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_line);
    layout->addWidget(m_list);
    m_line->setPlaceholderText(tr("Filter"));
    m_line->setAccessibleName(tr("Filter the choices"));
    m_line->setClearButtonEnabled(true);
    m_line->installEventFilter(this);
    m_list->setAccessibleName(tr("Choices"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setUniformItemSizes(true);
    setFocusProxy(m_line);
    connect(m_line, &QLineEdit::textChanged, this, &ChoicePopup::filter);
    connect(m_list, &QListWidget::itemClicked, this, &ChoicePopup::choose);
    m_line->setFocus();
}

void ChoicePopup::setChoices(const QStringList& names, int current)
{
    m_list->clear();
    for (const QString& name : names)
        m_list->addItem(orvane::shortLine(name));
    m_present = current;
    m_list->setCurrentRow(current);
    constexpr int mostRowsShown = 12;
    const int rows = std::clamp(static_cast<int>(names.size()), 1, mostRowsShown);
    const int rowHeight = std::max(m_list->sizeHintForRow(0), fontMetrics().height());
    m_list->setFixedHeight(rows * rowHeight + 2 * m_list->frameWidth());
    m_list->setMinimumWidth(std::max(m_list->sizeHintForColumn(0), 20 * fontMetrics().averageCharWidth()));
}

int ChoicePopup::current() const
{
    const QListWidgetItem* const item = m_list->currentItem();
    return item != nullptr && !item->isHidden() ? m_list->currentRow() : -1;
}

void ChoicePopup::setFilter(const QString& text)
{
    m_line->setText(text);
}

void ChoicePopup::filter()
{
    int best = -1;
    for (int row = 0; row < m_list->count(); ++row) {
        const QString name = m_list->item(row)->text();
        const bool matches = orvane::hasLettersInOrder(name, m_line->text());
        m_list->item(row)->setHidden(!matches);
        // The name that begins with the letters comes before one that has them somewhere.
        const bool begins = name.startsWith(m_line->text(), Qt::CaseInsensitive);
        if (matches
            && (best < 0 || (begins && !m_list->item(best)->text().startsWith(m_line->text(), Qt::CaseInsensitive))))
            best = row;
    }
    m_list->setCurrentRow(m_line->text().isEmpty() ? m_present : best);
}

void ChoicePopup::choose()
{
    const int number = current();
    if (number < 0)
        return;
    Q_EMIT chosen(number);
    finish(true);
}

bool ChoicePopup::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_line || event->type() != QEvent::KeyPress)
        return PopupFrame::eventFilter(object, event);
    auto* const key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        choose();
        return true;
    default:
        return PopupFrame::eventFilter(object, event);
    }
}
