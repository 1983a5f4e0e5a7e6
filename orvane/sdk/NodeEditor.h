#pragma once

#include "orvane/sdk/Binding.h"
#include "orvane/sdk/NodeEditorBase.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace orv {

/// An editor of the nodes of one class, and of those derived from it, which the dock "Node Editor" shows: a form. A
/// derived class adds the rows in `build`:
///
///     class LampEditor final : public orv::NodeEditor<Lamp> {
///         void build() override
///         {
///             addField(&Lamp::colour);
///             addText("Bulbs", [](const Lamp& lamp) { return QString::number(lamp.getChildren().size()); });
///         }
///     };
template <typename Node>
class NodeEditor : public NodeEditorBase {
protected:
    /// The extension's name is that of the class of nodes, or the given one.
    explicit NodeEditor(const char* name = nullptr)
        : NodeEditorBase(Node::getClassTypeId(), name)
    {
    }
    ~NodeEditor() override { destroyWidgets(); }

    /// The node that is shown, or null. It is kept alive meanwhile.
    [[nodiscard]] Node* node() const noexcept { return static_cast<Node*>(shownNode()); }

    /// Adds a row for a field: its name, on which a click shows the field's own editor, and a control that fits its
    /// class. A choice, a flag, a colour and whatever has a short text can be edited there; a list shows its length.
    template <typename Field, typename Owner>
    void addField(Field Owner::*field)
    {
        addFieldRow(finder(field));
    }
    /// Adds a row with a text, which follows the node: its name, its fields and its children.
    void addText(const QString& label, const std::function<QString(Node&)>& text)
    {
        addTextRow(label, [text](NxFieldContainer& node) { return text(static_cast<Node&>(node)); });
    }
    /// Shows a field in a widget and writes what the user does there: see `Binding::bind`.
    template <typename Field, typename Owner, typename... Arguments>
    void bind(Field Owner::*field, Arguments&&... arguments)
    {
        auto link = std::make_unique<FieldOf<Field>>(finder(field));
        link->binding.bind(std::forward<Arguments>(arguments)...);
        addLink(std::move(link));
    }
    /// Runs `show` when a node is shown and after each change of the node.
    void follow(const std::function<void(Node&)>& show)
    {
        addFollower([show](NxFieldContainer& node) { show(static_cast<Node&>(node)); });
    }

private:
    template <typename Field>
    struct FieldOf final : Link {
        explicit FieldOf(FieldFinder finder)
            : find(std::move(finder))
        {
        }
        void attach(NxFieldContainer* node) override
        {
            binding.attach(node != nullptr ? static_cast<Field*>(find(*node)) : nullptr);
        }

        FieldFinder find;
        Binding<Field> binding;
    };

    template <typename Field, typename Owner>
    static FieldFinder finder(Field Owner::*field)
    {
        static_assert(std::is_base_of_v<Owner, Node>, "the field belongs to another class of nodes");
        return [field](NxFieldContainer& node) -> NxField* { return &(static_cast<Node&>(node).*field); };
    }
};

} // namespace orv
