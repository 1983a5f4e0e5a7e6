#pragma once

#include "orvane/extender/OrvEditor.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/fields/NxRef.h"

#include <QPointer>
#include <QScrollArea>
#include <QString>

#include <functional>
#include <list>
#include <memory>
#include <utility>
#include <vector>

class NxField;
class QFormLayout;

namespace orv {

/// The part of a `NodeEditor` that doesn't depend on the class of its nodes: a form in a scroll area.
class NodeEditorBase : public OrvEditor {
    Q_OBJECT

public:
    ~NodeEditorBase() override;

    /// Shows the edited object and follows it. If that is no node of the class, it only records that it is active.
    void activate() override;
    /// Stops following the node and releases it.
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

protected:
    /// The field of a node that a row is about.
    using FieldFinder = std::function<NxField*(NxFieldContainer& node)>;

    /// Something that follows the node that is shown.
    struct Link {
        Link() = default;
        Link(const Link&) = delete;
        Link& operator=(const Link&) = delete;
        virtual ~Link() = default;
        /// Null for none.
        virtual void attach(NxFieldContainer* node) = 0;
    };

    NodeEditorBase(NxType handled, const char* name); ///< The name is the one for profiles.

    /// Has this editor replace others, given by the names of the extensions, such as "SFFloat": where a profile lets a
    /// dock use both, the others are left out. To be called in the constructor.
    void replaces(const QStringList& names);

    /// Adds the rows. Called once, before the editor is shown first; a node is there already.
    virtual void build() = 0;

    /// Adds a row with a new widget; the editor owns it. Without a label it has the whole width.
    template <typename Widget, typename... Arguments>
    Widget& add(const QString& label, Arguments&&... arguments)
    {
        auto* const widget = new Widget(std::forward<Arguments>(arguments)...);
        addWidget(label, *widget);
        return *widget;
    }

    /// Shows everything again, as after a change of the node. For what depends on other nodes.
    void refresh();
    /// Calls `refresh` after each change of the open scene, too: for what depends on the nodes below, or on others.
    void followScene();

    [[nodiscard]] NxFieldContainer* shownNode() const noexcept { return m_node.get(); } ///< The node, or null.
    /// A row of a field: its name, which leads to its editor, and its value.
    void addFieldRow(const FieldFinder& find);
    /// A row of a text that is made again when the node changes.
    void addTextRow(const QString& label, const std::function<QString(NxFieldContainer&)>& text);
    /// Called when a node is shown and when it changes.
    void addFollower(std::function<void(NxFieldContainer&)> follower);
    void addLink(std::unique_ptr<Link> link); ///< A widget that is bound to a field; lives as long as the form.
    /// Destroys the widgets. To be called by the destructor of the class that adds the rows.
    void destroyWidgets();

private:
    void makeArea();
    void addWidget(const QString& label, QWidget& widget);
    void buildOnce();
    void setNode(NxFieldContainer* node);

    QPointer<QScrollArea> m_area; // m_widget, which a dock may own
    QFormLayout* m_form = nullptr;
    std::vector<std::unique_ptr<Link>> m_links;
    std::list<std::function<void(NxFieldContainer&)>> m_followers; // one may add another
    NxRef<NxFieldContainer> m_node;
    NxNodeSensor m_sensor;
    bool m_followsScene = false;
};

} // namespace orv
