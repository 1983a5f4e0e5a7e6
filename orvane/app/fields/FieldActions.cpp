#include "orvane/app/fields/FieldActions.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/FieldClipboard.h"
#include "orvane/app/fields/FieldReferences.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/ImageReplacement.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

#include <vector>

namespace {

const QMimeData& clipboardData()
{
    static const QMimeData nothing;
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr ? *data : nothing;
}

} // namespace

FieldActions::FieldActions(OrvServices& services, CellServices& cells, FieldTableModel* model, FieldTableView* view)
    : QObject(view)
    , m_services(services)
    , m_cells(cells)
    , m_writer(cells.writer())
    , m_model(model)
    , m_view(view)
    , m_edit(
          add("field.edit", QT_TR_NOOP("&Edit"), QT_TR_NOOP("Opens the editor of the value"), {}, &FieldActions::edit))
    , m_copy(add("field.copyValue", QT_TR_NOOP("&Copy Value"), QT_TR_NOOP("Copies the value as text"),
          {QKeySequence::Copy}, &FieldActions::copyValue))
    , m_paste(add("field.pasteValue", QT_TR_NOOP("&Paste Value"), QT_TR_NOOP("Writes the value of the clipboard"),
          {QKeySequence::Paste}, &FieldActions::pasteValue))
    , m_copyPath(
          add("field.copyPath", QT_TR_NOOP("Copy P&ath"), QT_TR_NOOP("Copies the path of the field in the scene"),
              {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, &FieldActions::copyPath))
    , m_copyAssignment(add("field.copyAssignment", QT_TR_NOOP("Copy as --&set Argument"),
          QT_TR_NOOP("Copies path and value as an argument of the command line"), {Qt::CTRL | Qt::ALT | Qt::Key_S},
          &FieldActions::copyAssignment))
    , m_copyAll(add("field.copyAll", QT_TR_NOOP("Copy A&ll Fields"), QT_TR_NOOP("Copies all values of the node"),
          {Qt::CTRL | Qt::ALT | Qt::Key_C}, &FieldActions::copyAll))
    , m_copyGroup(add("field.copyGroup", QT_TR_NOOP("Copy Fields of This &Group"),
          QT_TR_NOOP("Copies the values of this group of fields"), {Qt::CTRL | Qt::ALT | Qt::Key_G},
          &FieldActions::copyGroup))
    , m_pasteAll(add("field.pasteAll", QT_TR_NOOP("Paste All F&ields"),
          QT_TR_NOOP("Writes all values of the clipboard to fields of the same name"), {Qt::CTRL | Qt::ALT | Qt::Key_V},
          &FieldActions::pasteAll))
    , m_reset(add("field.reset", QT_TR_NOOP("&Reset to Default"), QT_TR_NOOP("Gives the field its default value"),
          {Qt::CTRL | Qt::Key_Backspace}, &FieldActions::reset))
    , m_ignore(add("field.ignore", QT_TR_NOOP("I&gnore"),
          QT_TR_NOOP("Makes the scene behave as if the field had its default"), {Qt::CTRL | Qt::ALT | Qt::Key_I},
          &FieldActions::toggleIgnored))
    , m_favorite(add("field.favorite", QT_TR_NOOP("&Favorite"),
          QT_TR_NOOP("Keeps the field on top for all nodes of this class"), {Qt::CTRL | Qt::Key_B}, nullptr))
    , m_defer(add("field.writeWhenDone", QT_TR_NOOP("&Write When Done"),
          QT_TR_NOOP("While you drag, step or use a popup, the value is only shown; it is written when you are done."),
          {Qt::CTRL | Qt::ALT | Qt::Key_W}, nullptr))
    , m_findSame(add("field.selectSameValue", QT_TR_NOOP("Select &Nodes with This Value"),
          QT_TR_NOOP("Selects all nodes whose field has this value"), {Qt::CTRL | Qt::ALT | Qt::Key_F},
          &FieldActions::findSameValue))
{
    m_ignore->setCheckable(true);
    m_favorite->setCheckable(true);
    m_defer->setCheckable(true);
    connect(m_favorite, &QAction::triggered, this, [this] { Q_EMIT favoriteToggled(current()); });
    connect(m_defer, &QAction::triggered, this, [this] { Q_EMIT deferralToggled(current(), !isDeferred()); });
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view, &QWidget::customContextMenuRequested, this, &FieldActions::showMenu);
}

QAction* FieldActions::add(const char* name, const char* text, const char* statusTip, const QList<QKeySequence>& keys,
    void (FieldActions::*slot)())
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, statusTip] {
        action->setText(tr(text));
        action->setStatusTip(tr(statusTip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut); // not in the editors of its cells
    if (slot != nullptr)
        connect(action, &QAction::triggered, this, slot);
    m_view->addAction(action);
    return action;
}

QModelIndex FieldActions::current() const
{
    const QModelIndexList selected = m_view->selectionModel()->selectedRows();
    return selected.isEmpty() ? m_view->currentIndex() : selected.front();
}

FieldSet FieldActions::fields() const
{
    return m_model->fieldSet(current());
}

bool FieldActions::isDeferred() const
{
    const FieldSet set = fields();
    return !set.isEmpty() && m_writer.isDeferred(FieldSet(set.first())); // however many there are
}

QString FieldActions::nodes() const
{
    return m_model->nodeCount() == 1 ? orvane::nodeName(*m_model->node()) : tr("%1 nodes").arg(m_model->nodeCount());
}

void FieldActions::showMenu(const QPoint& place)
{
    update();
    QMenu menu(m_view);
    menu.setObjectName(QStringLiteral("fieldMenu"));
    const QList<QList<QAction*>> parts{{m_edit}, {m_copy, m_paste, m_copyPath, m_copyAssignment},
        {m_copyAll, m_copyGroup, m_pasteAll}, {m_reset, m_ignore, m_favorite, m_defer}, {m_findSame}};
    for (const QList<QAction*>& part : parts) {
        menu.addSeparator();
        for (QAction* const action : part) {
            if (action->isEnabled()) // what doesn't apply to the row isn't in its menu
                menu.addAction(action);
        }
    }
    menu.exec(m_view->viewport()->mapToGlobal(place));
    for (QAction* const action : m_view->actions())
        action->setEnabled(true); // the keys say why they can't
}

void FieldActions::update()
{
    const FieldSet set = fields();
    const bool hasField = !set.isEmpty();
    for (QAction* const action : {m_edit, m_copy, m_paste, m_copyPath, m_copyAssignment, m_ignore, m_favorite})
        action->setEnabled(hasField);
    const FieldRow* const row = m_model->row(current());
    const bool isList = row != nullptr && row->isList();
    m_edit->setText(isList ? tr("&Open List") : tr("&Edit"));
    m_reset->setEnabled(hasField && set.isChanged());
    m_findSame->setEnabled(hasField && !set.isMixed());
    m_ignore->setChecked(hasField && set.isIgnored());
    m_defer->setEnabled(hasField && !isList);
    m_defer->setChecked(isDeferred());
    m_favorite->setChecked(current().data(FieldRoles::FavoriteRole).toBool());
}

void FieldActions::edit()
{
    m_view->editRow(current());
}

void FieldActions::copyValue()
{
    const FieldSet set = fields();
    if (set.isEmpty())
        return;
    if (set.isMixed())
        Q_EMIT failed(tr("The %1 nodes have different values. Select one of them to copy its value.").arg(set.count()));
    else
        QGuiApplication::clipboard()->setMimeData(orvane::valueMimeData(set.first()).release());
}

void FieldActions::pasteValue()
{
    const FieldSet set = fields();
    const bool isImage = !set.isEmpty() && dynamic_cast<const NxSFImage*>(&set.first()) != nullptr;
    if (isImage && ImageReplacement::isPastable(clipboardData()))
        return m_cells.images().paste(current(), clipboardData());
    const auto result = orvane::pasteValue(m_writer, set, clipboardData());
    if (!result)
        Q_EMIT failed(result.error());
}

void FieldActions::copyPath()
{
    if (const NxGroup* const scene = m_services.document().root(); scene != nullptr && !fields().isEmpty())
        QGuiApplication::clipboard()->setText(orvane::pathsOf(fields(), *scene));
}

void FieldActions::copyAssignment()
{
    if (const NxGroup* const scene = m_services.document().root(); scene != nullptr && !fields().isEmpty())
        QGuiApplication::clipboard()->setText(orvane::assignmentsOf(fields(), *scene));
}

void FieldActions::copyAll()
{
    copyRows({});
}

void FieldActions::copyGroup()
{
    const QModelIndex index = current();
    copyRows(index.parent().isValid() ? index.parent() : index);
}

void FieldActions::copyRows(const QModelIndex& group)
{
    std::vector<const NxField*> copied;
    for (const FieldSet& set : m_model->allFields(group)) {
        if (!set.isMixed())
            copied.push_back(&set.first());
    }
    if (copied.empty())
        Q_EMIT failed(tr("There is no field to copy that has one value."));
    else
        QGuiApplication::clipboard()->setMimeData(orvane::fieldsMimeData(copied).release());
}

void FieldActions::pasteAll()
{
    const auto result = orvane::pasteFields(m_writer, m_model->allFields({}), clipboardData(), nodes());
    if (const QString message = result ? result.value() : result.error(); !message.isEmpty())
        Q_EMIT failed(message);
}

void FieldActions::reset()
{
    const FieldSet set = fields();
    if (set.isEmpty() || !set.isChanged())
        return;
    if (const auto result = m_writer.reset(set); !result)
        Q_EMIT failed(result.error());
}

void FieldActions::toggleIgnored()
{
    const FieldSet set = fields();
    if (set.isEmpty())
        return;
    if (const auto result = m_writer.setIgnored(set, !set.isIgnored()); !result)
        Q_EMIT failed(result.error());
}

void FieldActions::findSameValue()
{
    const FieldSet set = fields();
    const NxGroup* const scene = m_services.document().root();
    if (set.isEmpty() || scene == nullptr)
        return;
    if (set.isMixed()) {
        Q_EMIT failed(tr("The %1 nodes have different values. Select one of them first.").arg(set.count()));
        return;
    }
    const std::vector<NxNode*> found = orvane::nodesWithValue(set.first(), *scene);
    if (found.size() > 1)
        Q_EMIT nodesFound(found);
    else
        Q_EMIT failed(tr("No other node has this value of %1.").arg(m_model->row(current())->name()));
}
