#include "orvane/extender/detail/Selection.h"

#include "orvane/extender/detail/FieldWatch.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/scene/fields/NxField.h"

#include <QScopedValueRollback>

#include <utility>

namespace {

// Slots that answer a selection with another one stop long before this, unless they answer each other.
constexpr int mostAtOnce = 1000;

} // namespace

// A selection that waits. It keeps the nodes alive until it is announced, and notices the death of a field without one.
struct Selection::Request {
    Kind kind;
    NxRef<NxFieldContainer> node;
    NxRef<NxFieldContainer> fieldOwner;
    std::unique_ptr<FieldWatch> field;
};

Selection::Selection(Announcements announcements)
    : m_announce(std::move(announcements))
    , m_field(std::make_unique<FieldWatch>())
{
}

Selection::~Selection() = default;

void Selection::selectNode(NxFieldContainer* node)
{
    request(Kind::Node, node, nullptr);
}

void Selection::selectField(NxField* field)
{
    request(Kind::Field, nullptr, field);
}

void Selection::select(NxFieldContainer* node, NxField* field)
{
    request(Kind::NodeAndField, node, field);
}

void Selection::announce()
{
    request(Kind::Announcement, nullptr, nullptr);
}

NxField* Selection::field() const noexcept
{
    return m_field->getAttachedField();
}

void Selection::request(Kind kind, NxFieldContainer* node, NxField* field)
{
    NxFieldContainer* const owner = field != nullptr ? field->getContainer() : nullptr;
    m_requests.push_back({kind, node, owner, std::make_unique<FieldWatch>(field)});
    if (m_announcing)
        return;
    const QScopedValueRollback announcing(m_announcing, true);
    for (int carriedOut = 0; !m_requests.empty(); ++carriedOut) {
        if (carriedOut == mostAtOnce) {
            m_requests.clear();
            NxDebugError::post(NxDebugError::Error,
                "Extensions answer each other's selections without end: the last one announced stays. Switch to a "
                "profile without one of them.");
            return;
        }
        const Request next = std::move(m_requests.front());
        m_requests.pop_front();
        carryOut(next);
    }
}

void Selection::carryOut(const Request& request)
{
    switch (request.kind) {
    case Kind::Node:
        changeNode(request.node);
        return;
    case Kind::Field:
        changeField(request.field->getAttachedField(), request.fieldOwner);
        return;
    case Kind::NodeAndField:
        changeNode(request.node);
        changeField(request.field->getAttachedField(), request.fieldOwner);
        return;
    case Kind::Announcement:
        m_announce.node(node());
        m_announce.field(field());
        return;
    }
}

// The field is deselected first, so that no editor holds a field of a node that is no longer selected.
void Selection::changeNode(const NxRef<NxFieldContainer>& node)
{
    if (node != m_node && field() != nullptr)
        changeField(nullptr, {});
    const NxRef<NxFieldContainer> aliveForTheSlots = std::exchange(m_node, node);
    m_announce.node(node.get());
}

void Selection::changeField(NxField* field, const NxRef<NxFieldContainer>& owner)
{
    const NxRef<NxFieldContainer> aliveForTheSlots = std::exchange(m_fieldOwner, owner);
    m_field->attach(field);
    m_announce.field(field);
}
