#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <deque>
#include <functional>
#include <memory>

class FieldWatch;
class NxField;

/// The selected node and field of the services, and the order in which changes of them are announced.
///
/// The getters return the selection that was announced last, so all slots of one announcement see the same selection. A
/// selection that a slot makes waits until all slots have been called for the current one.
class Selection {
public:
    /// Called to announce the selected node and the selected field, which may be null.
    struct Announcements {
        std::function<void(NxFieldContainer*)> node;
        std::function<void(NxField*)> field;
    };

    explicit Selection(Announcements announcements);
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection();

    void selectNode(NxFieldContainer* node);
    void selectField(NxField* field);
    void select(NxFieldContainer* node, NxField* field);
    /// Announces node and field again.
    void announce();

    [[nodiscard]] NxFieldContainer* node() const noexcept { return m_node.get(); }
    [[nodiscard]] NxField* field() const noexcept;
    /// The node of the selected field, or null.
    [[nodiscard]] NxFieldContainer* fieldOwner() const noexcept { return m_fieldOwner.get(); }

private:
    enum class Kind { Node, Field, NodeAndField, Announcement };
    struct Request;

    void request(Kind kind, NxFieldContainer* node, NxField* field);
    void carryOut(const Request& request);
    void changeNode(const NxRef<NxFieldContainer>& node);
    void changeField(NxField* field, const NxRef<NxFieldContainer>& owner);

    const Announcements m_announce;
    NxRef<NxFieldContainer> m_node;
    NxRef<NxFieldContainer> m_fieldOwner;
    std::unique_ptr<FieldWatch> m_field;
    std::deque<Request> m_requests;
    bool m_announcing = false;
};
