#pragma once

#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/ItemClicks.h"
#include "app/WindowCase.h"

#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QTreeView>

/// A test of the main window on a scene file of a robot and a sun.
class RobotWindowCase : public WindowCase {
protected:
    /// Starts the tool beside the file, which isn't open yet.
    void startBesideRobot()
    {
        startTool();
        m_robot = filePath("robot.mrd");
        writeFile(m_robot, AppScenes::robotText);
    }

    void renameRobot(const char* name)
    {
        Q_EMIT m_window->findChild<SceneTreePanel*>()->model()->renameRequested(robot(), QLatin1String(name));
        AppScenes::runSensors();
    }

    static void clickRow(QAbstractItemView* view, const QModelIndex& index) { ItemClicks::click(view, index); }

    QTreeView* tree() { return m_window->findChild<QTreeView*>(QStringLiteral("sceneTree")); }
    /// The row of a field of the selected node, which may be folded away.
    QModelIndex fieldRow(const NxField* field)
    {
        return static_cast<const FieldTableModel*>(table()->model())->indexOf(field);
    }
    /// The row of a field by its number in the node; a negative one counts from the end.
    QModelIndex fieldRow(int number)
    {
        const std::vector<NxField*> fields = m_session->services().getSelectedNode()->getFields();
        return fieldRow(fields.at(
            number < 0 ? fields.size() - static_cast<std::size_t>(-number) : static_cast<std::size_t>(number)));
    }
    FieldTableView* table() { return m_window->findChild<FieldTableView*>(); }
    QStringList messages() { return m_window->findChild<MessageBar*>()->texts(); }
    NxGroup* robot() { return dynamic_cast<NxGroup*>(m_window->document().scene()->getChild(0)); }
    NxNode* sun() { return m_window->document().scene()->getChild(1); }

    QString m_robot;
};
