#include "orvane/app/view/navigation/BookmarkDialog.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/view/navigation/SceneBookmarks.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

BookmarkDialog::BookmarkDialog(SceneBookmarks& bookmarks, QWidget* parent)
    : QDialog(parent)
    , m_bookmarks(bookmarks)
    , m_list(new QListWidget(this))
    , m_goTo(addButton("bookmarkGoTo", QT_TR_NOOP("&Go To"), QT_TR_NOOP("Looks from where the bookmark was set"),
          &BookmarkDialog::goTo))
    , m_rename(addButton("bookmarkRename", QT_TR_NOOP("&Rename"), QT_TR_NOOP("Gives the bookmark another name"),
          &BookmarkDialog::rename))
    , m_set(addButton("bookmarkSet", QT_TR_NOOP("Set to the &View"),
          QT_TR_NOOP("The bookmark becomes what the view shows now"), &BookmarkDialog::setToView))
    , m_remove(addButton(
          "bookmarkRemove", QT_TR_NOOP("Re&move"), QT_TR_NOOP("Removes the bookmark"), &BookmarkDialog::remove))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("bookmarkDialog"));
    orvane::followLanguage(this, [this] {
        setWindowTitle(tr("Bookmarks"));
        m_list->setAccessibleName(tr("Bookmarks"));
    });
    const int unit = orvane::look::unit(fontMetrics());
    m_list->setObjectName(QStringLiteral("bookmarkList"));
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    m_list->installEventFilter(this);
    auto* const buttons = new QVBoxLayout;
    buttons->setSpacing(unit);
    for (QPushButton* const button : {m_goTo, m_rename, m_set, m_remove})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* const box = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Vertical, this);
    buttons->addWidget(box);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    layout->setSpacing(2 * unit);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &BookmarkDialog::goTo);
    connect(m_list, &QListWidget::currentRowChanged, this, &BookmarkDialog::updateButtons);
    connect(m_list, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        const auto giveName = [this, number = static_cast<std::size_t>(m_list->row(item)), name = item->text()] {
            m_bookmarks.rename(number, name);
            fill();
        };
        // Not at once: the editor of the list still works on the item.
        QMetaObject::invokeMethod(this, giveName, Qt::QueuedConnection);
    });
    connect(&bookmarks, &SceneBookmarks::changed, this, &BookmarkDialog::fill);
    fill();
    resize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 16);
}

QPushButton* BookmarkDialog::addButton(
    const char* name, const char* text, const char* tip, void (BookmarkDialog::*run)())
{
    auto* const button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    orvane::followLanguage(button, [button, text, tip] {
        button->setText(tr(text));
        button->setToolTip(tr(tip));
    });
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, run);
    return button;
}

bool BookmarkDialog::eventFilter(QObject* /*object*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !m_list->currentItem())
        return false;
    switch (static_cast<const QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goTo();
        return true;
    case Qt::Key_Delete:
        remove();
        return true;
    default:
        return false;
    }
}

std::size_t BookmarkDialog::current() const
{
    return static_cast<std::size_t>(m_list->currentRow()); // -1 is no bookmark either
}

void BookmarkDialog::fill()
{
    const int row = m_list->currentRow();
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (const ViewBookmark& bookmark : m_bookmarks.list()) {
            auto* const item = new QListWidgetItem(bookmark.name, m_list);
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
        m_list->setCurrentRow(std::clamp(row, m_list->count() > 0 ? 0 : -1, m_list->count() - 1));
    }
    updateButtons();
}

void BookmarkDialog::updateButtons()
{
    for (QPushButton* const button : {m_goTo, m_rename, m_set, m_remove})
        button->setEnabled(m_list->currentRow() >= 0);
}

void BookmarkDialog::goTo()
{
    m_bookmarks.goTo(current());
}

void BookmarkDialog::rename()
{
    m_list->setFocus();
    m_list->editItem(m_list->currentItem());
}

void BookmarkDialog::setToView()
{
    m_bookmarks.update(current());
}

void BookmarkDialog::remove()
{
    m_bookmarks.remove(current());
}
