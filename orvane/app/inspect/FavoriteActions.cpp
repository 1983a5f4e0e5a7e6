#include "orvane/app/inspect/FavoriteActions.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/inspect/FavoriteDelegate.h"
#include "orvane/app/inspect/FavoriteNodes.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Symbols.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/app/tree/NodeIcons.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

FavoriteActions::FavoriteActions(FavoriteNodes& favorites, SceneTreePanel* tree, QWidget* window)
    : QObject(window)
    , m_favorites(favorites)
    , m_tree(tree)
    , m_toggle(new QAction(this))
    , m_menu(new QMenu(window))
{
    orvane::followLanguage(this, [this] {
        m_toggle->setText(tr("Fa&vorite Node"));
        m_toggle->setStatusTip(tr("Marks the selected node with a star, and adds it to the list of favorites"));
    });
    m_toggle->setObjectName(QStringLiteral("node.favorite"));
    m_toggle->setCheckable(true);
    m_toggle->setIcon(orvane::look::symbol(QStringLiteral("star")));
    m_toggle->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_B));
    m_menu->setObjectName(QStringLiteral("favoriteNodes"));
    connect(m_toggle, &QAction::triggered, this, &FavoriteActions::toggle);
    connect(m_menu, &QMenu::aboutToShow, this, &FavoriteActions::list);
    connect(&favorites, &FavoriteNodes::changed, this, &FavoriteActions::update);
    connect(tree, &SceneTreePanel::selectionChanged, this, &FavoriteActions::update);
    tree->view()->setItemDelegate(new FavoriteDelegate(favorites, *tree->model(), tree->view()));
    orvane::followLanguage(this, [this] { update(); });
}

void FavoriteActions::addTo(QToolBar* toolBar)
{
    auto* const button = new QToolButton(toolBar);
    button->setObjectName(QStringLiteral("favoriteButton"));
    button->setDefaultAction(m_toggle);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setMenu(m_menu);
    toolBar->addWidget(button);
}

void FavoriteActions::toggle()
{
    const std::vector<NxNode*> path = m_tree->model()->path(m_tree->selected());
    if (!path.empty() && !m_favorites.toggle(path))
        Q_EMIT refused(tr("A scene has %1 favorites at most. Take the star from another one first.")
                           .arg(FavoriteNodes::mostNodes));
    update();
}

void FavoriteActions::update()
{
    orvane::setReason(*m_toggle, m_tree->selected().isValid() ? QString() : tr("Select a node first."));
    m_toggle->setChecked(m_favorites.contains(m_tree->selectedNode()));
    m_tree->view()->viewport()->update();
}

void FavoriteActions::list()
{
    m_menu->clear();
    for (const std::vector<NxNode*>& path : m_favorites.paths()) {
        const NxNode& node = *path.back();
        QAction* const action
            = m_menu->addAction(orvane::nodeIcon(node.getTypeId()), orvane::menuText(orvane::nodeName(node)));
        // The scene may change while the menu is open.
        connect(action, &QAction::triggered, this, [this, wanted = path.back()] {
            for (const std::vector<NxNode*>& present : m_favorites.paths()) {
                if (present.back() == wanted)
                    m_tree->select(m_tree->model()->indexOfPath(present));
            }
        });
    }
    if (m_menu->isEmpty())
        m_menu->addAction(tr("No favorites in this scene"))->setEnabled(false);
}
