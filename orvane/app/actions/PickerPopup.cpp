#include "orvane/app/actions/PickerPopup.h"

#include "orvane/app/actions/PickerDelegate.h"
#include "orvane/app/actions/PickerModel.h"
#include "orvane/app/actions/PickerSource.h"
#include "orvane/app/look/Look.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int mostRowsShown = 14;
constexpr int usualCharacters = 90;

} // namespace

PickerPopup::PickerPopup(QWidget* parent)
    : PopupFrame(parent)
    , m_model(new PickerModel(this))
    , m_line(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_message(new QLabel(this))
{
    setObjectName(QStringLiteral("pickerPopup"));
    const int unit = orvane::look::unit(fontMetrics());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(unit, unit, unit, unit);
    layout->setSpacing(unit);
    layout->addWidget(m_line);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_message);
    m_line->setObjectName(QStringLiteral("pickerLine"));
    m_line->setMaxLength(1000);
    m_line->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("pickerList"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(new PickerDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setFrameShape(NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_message->setObjectName(QStringLiteral("pickerMessage"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setMargin(unit);
    setFocusProxy(m_line);
    connect(m_line, &QLineEdit::textChanged, this, [this] {
        m_hasMoved = false;
        search();
    });
    connect(m_list, &QListView::clicked, this, &PickerPopup::choose);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &PickerPopup::describe);
}

PickerPopup::~PickerPopup() = default;

void PickerPopup::open(PickerSource& source)
{
    if (m_source != nullptr)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = &source;
    connect(&source, &PickerSource::changed, this, &PickerPopup::search);
    connect(&source, &PickerSource::gone, this, [this] { finish(false); });
    const PickerSource::Texts texts = source.texts();
    for (QWidget* const part :
        {static_cast<QWidget*>(this), static_cast<QWidget*>(m_line), static_cast<QWidget*>(m_list)})
        part->setAccessibleName(texts.name);
    m_line->setPlaceholderText(texts.hint);
    {
        const QSignalBlocker blocker(m_line);
        m_line->clear();
    }
    m_isChoosing = false;
    m_hasMoved = false;
    place();
    m_line->setFocus();
    search();
}

// In the window as far as it has room, below its menu bar.
void PickerPopup::place()
{
    const QWidget& window = *parentWidget()->window();
    const int unit = orvane::look::unit(fontMetrics());
    const int margin = 4 * unit;
    const int width = std::min(window.width() - 2 * margin, usualCharacters * fontMetrics().averageCharWidth());
    const int rows = mostRowsShown * orvane::look::rowHeight(fontMetrics());
    const int top = window.height() > rows ? 2 * orvane::look::rowHeight(fontMetrics()) : 0;
    const int rest = m_line->sizeHint().height() + m_message->sizeHint().height() + 8 * unit;
    const int height = std::min(rows + rest, window.height() - top - unit);
    setFixedSize(std::max(width, 1), std::max(height, m_line->sizeHint().height() + 4 * unit));
    const QPoint corner = window.mapToGlobal(QPoint((window.width() - this->width()) / 2, top));
    openAt(QRect(corner, QSize(1, 0)));
}

void PickerPopup::search()
{
    m_source->search(m_line->text());
    m_shown.invalidate();
    work();
}

void PickerPopup::work()
{
    const bool isLeft = m_source->work();
    if (isLeft && !m_slices.isActive())
        m_slices.start(0, this);
    if (!isLeft)
        m_slices.stop();
    // The first rows at once; each time takes about as long as a slice.
    constexpr qint64 interval = 30;
    const bool isDue = m_model->rowCount() == 0 || !m_shown.isValid() || m_shown.hasExpired(interval);
    if (!isLeft || (isDue && m_source->hasNews()))
        showItems();
}

void PickerPopup::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_slices.timerId())
        work();
    else
        PopupFrame::timerEvent(event);
}

quint64 PickerPopup::currentId() const
{
    const PickerItem* const item = m_model->item(m_list->currentIndex());
    return item != nullptr ? item->id : 0;
}

void PickerPopup::showItems()
{
    m_shown.start();
    const quint64 wanted = m_hasMoved ? currentId() : 0;
    m_model->setItems(m_source->items());
    const int row = wanted == 0 ? 0 : std::max(0, m_model->rowOf(wanted));
    m_list->setCurrentIndex(m_model->index(row));
    describe();
}

void PickerPopup::describe()
{
    const PickerItem* const item = m_model->item(m_list->currentIndex());
    QString text = item != nullptr ? item->reason : QString();
    if (item == nullptr)
        text = m_slices.isActive() ? tr("Searching…") : m_source->texts().nothing;
    m_message->setText(text);
    // Screen readers follow the line, which has the focus.
    const QString spoken = m_list->currentIndex().data(Qt::AccessibleTextRole).toString();
    const QString description = spoken.isEmpty() ? text : spoken;
    if (m_line->accessibleDescription() != description)
        m_line->setAccessibleDescription(description);
}

void PickerPopup::choose(const QModelIndex& index)
{
    const PickerItem* const item = m_model->item(index);
    if (item == nullptr || !item->reason.isEmpty())
        return;
    const quint64 id = item->id;
    m_slices.stop();
    m_isChoosing = true;
    finish(false);
    m_source->choose(id);
}

bool PickerPopup::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_line || event->type() != QEvent::KeyPress)
        return PopupFrame::eventFilter(object, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_hasMoved = true;
        QCoreApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentIndex());
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true; // there is nowhere to go
    default:
        return PopupFrame::eventFilter(object, event);
    }
}

void PickerPopup::hideEvent(QHideEvent* event)
{
    m_slices.stop();
    PopupFrame::hideEvent(event);
    if (!m_isChoosing && m_source != nullptr)
        m_source->end();
}
