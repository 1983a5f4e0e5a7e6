#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/fields/values/FieldSet.h"

#include <QObject>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

class OrvCommand;
class OrvServices;

namespace meridane {
class ChangeRecord;
class Expression;
} // namespace meridane

/// Writes the fields of a set, each time as one step of the history, such as "Set arm.rotation" or "Set radius of 12
/// nodes".
///
/// Between `begin` and `end` all writes are one step, for editors that show each change at once. A write that fails for
/// one field changes none, and returns a message that says which text was refused, why, and what the field takes.
///
/// A live edit can be deferred: then its writes go to spare fields, and `end` writes the fields themselves, once.
/// Thread of the user interface only.
class FieldWriter : public QObject {
    Q_OBJECT

public:
    /// The services live longer.
    explicit FieldWriter(OrvServices& services, QObject* parent = nullptr);
    /// Ends a live edit.
    ~FieldWriter() override;

    /// Sets all fields from the text form of a value.
    orvane::Result<> setText(const FieldSet& fields, const QString& text);
    /// Sets a component of each field to the value of an expression of one variable, which is the field's own number.
    /// A number that the type of one of the fields can't hold is refused.
    orvane::Result<> setNumber(const FieldSet& fields, int component, const meridane::Expression& expression);
    /// Copies the value of a field of the same class to all fields.
    orvane::Result<> copy(const FieldSet& fields, const NxField& source);
    /// Sets each field to the default of its class.
    orvane::Result<> reset(const FieldSet& fields);
    /// Sets flags, which are `NxSFBool`, to the other value; those that differ become true.
    orvane::Result<> toggle(const FieldSet& fields);
    /// Sets whether the scene ignores the fields.
    orvane::Result<> setIgnored(const FieldSet& fields, bool ignored);
    /// A value for the fields of a row.
    struct Item {
        FieldSet fields;
        std::string text; ///< the text form
        bool isIgnored = false;
    };
    /// Sets values and ignored flags of several rows as one step with that label. If one of the texts is refused,
    /// nothing is changed.
    orvane::Result<> setAll(std::span<const Item> items, const QString& label);
    /// Changes each field by a function, which returns false and changes nothing if it can't: then no field is changed.
    orvane::Result<> change(const FieldSet& fields, const std::function<bool(NxField&)>& function);

    /// Begins a live edit: all writes of these fields until `end` or `cancel` are one step, however many actions of the
    /// user they take. It keeps the present values. Another live edit ends. Fails if the values don't fit in memory.
    orvane::Result<> begin(const FieldSet& fields);
    [[nodiscard]] bool isLive() const noexcept { return !m_live.isEmpty(); }
    /// Ends the live edit, if there is one, and writes the pending values of a deferred one. If the fields have the
    /// values from before, there is no step.
    void end();
    /// Puts all fields of the live edit back to their values from before, to the bit. Pending values are dropped.
    void cancel();

    /// Sets which fields are written only at the end of a live edit. All are written at once until it is set.
    void setDeferral(std::function<bool(const NxField& first)> deferral) { m_deferral = std::move(deferral); }
    [[nodiscard]] bool isDeferred(const FieldSet& fields) const;
    /// Sets of more fields are written at once in any case: each pending value needs a spare node.
    static constexpr int mostDeferred = 1'000;
    /// The spare fields with the pending values, in the same order, while a deferred edit of the fields goes on;
    /// otherwise the fields. They can be passed in place of the fields.
    [[nodiscard]] const FieldSet& pending(const FieldSet& fields) const;
    [[nodiscard]] bool isPending(const FieldSet& fields) const;
    /// Whether a deferred edit goes on.
    [[nodiscard]] bool isPending() const noexcept { return !m_pending.isEmpty(); }

    /// Begins a live edit that drags a component of all fields. Does nothing for fields without numbers.
    void beginDrag(const FieldSet& fields, int component);
    /// Changes a dragged field by a difference, counted from its value at the beginning of the drag.
    using Mover = std::function<void(NxField& field, double delta)>;
    using MoverOf = std::function<Mover(const NxField& start)>;
    /// The same for a number that isn't a component. `moverOf` is called once for each field.
    void beginDrag(const FieldSet& fields, const MoverOf& moverOf);
    /// What moves a component of fields like this one, which has numbers.
    [[nodiscard]] static MoverOf componentMover(const NxField& like, int component);
    /// Sets the number of each field to its own value from the beginning of the drag plus `delta`. A component stays
    /// within the range of its type; whole numbers are rounded. End the drag with `end` or `cancel`.
    void drag(double delta);

Q_SIGNALS:
    /// The fields were written.
    void written(const FieldSet& fields);
    /// Pending values have changed, have been written or dropped.
    void pendingChanged();
    /// The pending values couldn't be written; the fields are as before.
    void failed(const QString& message);

private:
    using Write = std::function<bool(NxField& field, std::size_t number)>;

    /// `label` is empty for one that the history makes.
    orvane::Result<> write(const FieldSet& fields, Write write, const QString& label = {});

    void push(std::unique_ptr<OrvCommand> command, const QString& label);
    [[nodiscard]] orvane::Result<> record(const FieldSet& fields);
    [[nodiscard]] bool makePending(const FieldSet& fields);
    void writePending();
    void announce(const FieldSet& fields);
    void forgetLive();
    /// The fields that spare ones stand for.
    [[nodiscard]] const FieldSet& original(const FieldSet& fields) const;

    OrvServices& m_services;
    FieldSet m_live; // of the live edit; empty for none
    std::vector<std::unique_ptr<meridane::ChangeRecord>> m_before; // its values
    FieldSet m_pending; // the spare fields of a deferred one; empty for none
    std::function<bool(const NxField& first)> m_deferral;
    std::vector<Mover> m_movers; // for each field; empty when none is dragged
};
