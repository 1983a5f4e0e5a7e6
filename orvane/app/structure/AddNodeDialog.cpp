#include "orvane/app/structure/AddNodeDialog.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/tree/NodeIcons.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace {

enum ClassListColumn { ClassNameColumn, ClassTextColumn };

QString descriptionOf(NxType type)
{
    const NxRef<NxNode> node(static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
    return node ? orvane::nodeDescription(node->getFieldData()->getDescription()) : QString();
}

} // namespace

AddNodeDialog::AddNodeDialog(const QString& place, QWidget* window)
    : QDialog(window)
    , m_line(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_description(new QLabel(place, this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("addNodeDialog"));
    setWindowTitle(tr("Add Node"));
    m_line->setObjectName(QStringLiteral("addNodeLine"));
    m_line->setPlaceholderText(tr("Words of the class or its description"));
    m_line->setAccessibleName(tr("Filter"));
    m_line->setClearButtonEnabled(true);
    m_line->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("addNodeList"));
    m_list->setAccessibleName(tr("Classes"));
    m_list->setHeaderLabels({tr("Class"), tr("Description")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_description->setTextFormat(Qt::PlainText);
    m_description->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_add = buttons->addButton(tr("&Add"), QDialogButtonBox::AcceptRole);
    m_add->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_line);
    layout->addWidget(m_list);
    layout->addWidget(m_description);
    layout->addWidget(buttons);
    fill();
    connect(m_line, &QLineEdit::textChanged, this, &AddNodeDialog::filter);
    connect(m_list, &QTreeWidget::itemActivated, this, &AddNodeDialog::choose);
    connect(buttons, &QDialogButtonBox::accepted, this, &AddNodeDialog::choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    filter({});
    const int width = fontMetrics().averageCharWidth();
    resize(width * 100, fontMetrics().height() * 26);
    m_list->header()->resizeSection(ClassNameColumn, width * 28);
}

bool AddNodeDialog::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_line || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(object, event);
    // The line keeps the focus while the arrow keys choose.
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isForList = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    if (isForList)
        QCoreApplication::sendEvent(m_list, event);
    return isForList;
}

void AddNodeDialog::fill()
{
    std::vector<NxType> types = NxType::getAllDerivedFrom(NxNode::getClassTypeId());
    std::erase_if(types,
        [](NxType type) { return !type.canCreateInstance() || type.isDerivedFrom(NxUnknownNode::getClassTypeId()); });
    for (const NxType type : types) {
        auto* const item = new QTreeWidgetItem(m_list);
        item->setText(ClassNameColumn, QString::fromUtf8(type.getName().getString()));
        item->setIcon(ClassNameColumn, orvane::nodeIcon(type));
        item->setText(ClassTextColumn, descriptionOf(type));
        item->setToolTip(ClassTextColumn, item->text(ClassTextColumn));
    }
    m_list->sortItems(ClassNameColumn, Qt::AscendingOrder);
}

void AddNodeDialog::filter(const QString& text)
{
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    QTreeWidgetItem* first = nullptr;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        QTreeWidgetItem* const item = m_list->topLevelItem(row);
        const QString all = item->text(ClassNameColumn) + u' ' + item->text(ClassTextColumn);
        const bool isFound = std::all_of(words.begin(), words.end(),
            [&all](const QString& word) { return all.contains(word, Qt::CaseInsensitive); });
        item->setHidden(!isFound);
        // A name that begins with the text is what is most likely meant.
        const bool begins = item->text(ClassNameColumn).startsWith(text.trimmed(), Qt::CaseInsensitive);
        if (isFound
            && (first == nullptr
                || (begins && !first->text(ClassNameColumn).startsWith(text.trimmed(), Qt::CaseInsensitive))))
            first = item;
    }
    m_list->setCurrentItem(first);
    m_add->setEnabled(first != nullptr);
}

void AddNodeDialog::choose()
{
    const QTreeWidgetItem* const item = m_list->currentItem();
    if (item == nullptr || item->isHidden())
        return;
    const NxType type = NxType::fromName(VbName(item->text(ClassNameColumn).toUtf8().constData()));
    accept();
    Q_EMIT chosen(type);
}
