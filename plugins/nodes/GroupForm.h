#pragma once

#include "plugins/nodes/BelowFacts.h"

#include "orvane/sdk/NodeEditor.h"

#include <QCoreApplication>

namespace nodes {

/// An editor of groups of one class, which has rows about what is in them.
template <typename Group>
class GroupForm : public orv::NodeEditor<Group> {
protected:
    /// Adds the number of children, and what is below: meshes, triangles and bounds.
    void addChildrenRows()
    {
        this->addText(text(QT_TRANSLATE_NOOP("GroupForm", "Children")),
            [](Group& group) { return QString::number(group.getChildren().size()); });
        auto& below = this->template add<BelowFacts>(text(QT_TRANSLATE_NOOP("GroupForm", "Below are")));
        below.setObjectName(QStringLiteral("figures"));
        this->follow([&below](Group& group) { below.setNode(group); });
        // What is further down isn't a change of the group itself.
        this->followScene();
    }

private:
    static QString text(const char* english) { return QCoreApplication::translate("GroupForm", english); }
};

} // namespace nodes
