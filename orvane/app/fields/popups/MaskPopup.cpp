#include "orvane/app/fields/popups/MaskPopup.h"

#include "orvane/app/base/PlainText.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <algorithm>

MaskPopup::MaskPopup(QWidget* parent)
    : PopupFrame(parent)
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("maskPopup"));
    setAccessibleName(tr("Bits"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    m_list->setAccessibleName(tr("Bits"));
    m_list->setFrameShape(NoFrame);
    m_list->setSpacing(1);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The list would change a bit only by a click on its box.
    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
    setFocusProxy(m_list);
    m_list->setFocus();
}

void MaskPopup::setBits(const std::vector<Bits>& bits)
{
    m_list->clear();
    for (const Bits& some : bits) {
        const QString number = tr("bits 0x%1, without a name").arg(some.bits, 0, 16);
        auto* const item = new QListWidgetItem(some.name.isEmpty() ? number : orvane::shortLine(some.name), m_list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(some.state);
    }
    m_list->setCurrentRow(0);
    constexpr int mostRowsShown = 16;
    const int rows = std::clamp(m_list->count(), 1, mostRowsShown);
    m_list->setFixedHeight(rows * (std::max(m_list->sizeHintForRow(0), fontMetrics().height()) + 2));
    m_list->setMinimumWidth(m_list->sizeHintForColumn(0) + 2 * fontMetrics().averageCharWidth());
}

void MaskPopup::setState(int number, Qt::CheckState state)
{
    if (QListWidgetItem* const item = m_list->item(number); item != nullptr)
        item->setCheckState(state);
}

void MaskPopup::toggle(QListWidgetItem* item)
{
    if (item == nullptr)
        return;
    const bool on = item->checkState() != Qt::Checked;
    item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    Q_EMIT toggled(m_list->row(item), on);
}

bool MaskPopup::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_list->viewport()) {
        const bool isClick = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
        if (isClick) {
            QListWidgetItem* const item = m_list->itemAt(static_cast<QMouseEvent*>(event)->pos());
            if (item != nullptr)
                m_list->setCurrentItem(item);
            toggle(item);
        }
        return isClick || event->type() == QEvent::MouseButtonRelease;
    }
    if (object == m_list && event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Space) {
            if (!key->isAutoRepeat())
                toggle(m_list->currentItem());
            return true;
        }
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            finish(true);
            return true;
        }
    }
    return PopupFrame::eventFilter(object, event);
}
