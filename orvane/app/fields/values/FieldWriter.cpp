#include "orvane/app/fields/values/FieldWriter.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/fields/values/FieldTrial.h"
#include "orvane/app/fields/values/FieldWriteCommand.h"
#include "orvane/app/fields/values/IgnoreCommand.h"
#include "orvane/app/fields/values/Refusal.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/values/VbString.h"
#include "meridane/query/Expression.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/single/NxSFBool.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <variant>

FieldWriter::FieldWriter(OrvServices& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
}

FieldWriter::~FieldWriter()
{
    const QSignalBlocker blocker(this); // who listens may be half destroyed
    end();
}

orvane::Result<> FieldWriter::setText(const FieldSet& fields, const QString& text)
{
    if (fields.isEmpty())
        return orvane::Failure{tr("There is no field to set.")};
    const VbString value(text.toStdString());
    const FieldTrial trial(fields.first());
    NxField* const spare = trial.field();
    if (spare != nullptr && !spare->set(value))
        return orvane::Failure{orvane::refusedText(original(fields).first(), text)};
    auto result = write(fields, [&](NxField& field, std::size_t /*number*/) {
        return spare != nullptr ? field.copyFrom(*spare) : field.set(value);
    });
    if (!result && spare == nullptr)
        return orvane::Failure{orvane::refusedText(original(fields).first(), text)};
    return result;
}

orvane::Result<> FieldWriter::setNumber(const FieldSet& fields, int component, const meridane::Expression& expression)
{
    const auto* const components = fields.isEmpty() ? nullptr : meridane::FieldComponents::of(fields.first());
    if (components == nullptr)
        return orvane::Failure{tr("%1 doesn't consist of numbers.").arg(fields.name())};
    std::vector<double> values;
    values.reserve(fields.fields().size());
    const std::span<NxField* const> named = original(fields).fields();
    for (const NxField* const field : pending(fields).fields()) {
        const auto value = expression.evaluate(components->get(*field, 0, component));
        const auto* const number = std::get_if<double>(&value);
        const std::optional<std::string> refusal
            = number == nullptr ? std::get<meridane::QueryError>(value).message : components->refusal(*number);
        QString reason = orvane::toolkitText(orvane::toQString(refusal.value_or(std::string())));
        if (!reason.isEmpty() && fields.count() > 1)
            reason = tr("%1: %2").arg(orvane::nodeName(*named[values.size()]->getContainer()), reason);
        if (!reason.isEmpty())
            return orvane::Failure{tr("\"%1\" can't be taken. %2").arg(orvane::toQString(expression.text()), reason)};
        values.push_back(*number);
    }
    return write(fields,
        [&](NxField& field, std::size_t number) { return components->set(field, 0, component, values[number]); });
}

orvane::Result<> FieldWriter::copy(const FieldSet& fields, const NxField& source)
{
    if (fields.isEmpty())
        return orvane::Failure{tr("There is no field to set.")};
    if (source.getTypeId() != fields.first().getTypeId()) {
        return orvane::Failure{
            tr("%1 is a field of type %2; a value of type %3 can't be copied to it.")
                .arg(original(fields).name(), orvane::typeName(fields.first()), orvane::typeName(source))};
    }
    return write(fields, [&source](NxField& field, std::size_t /*number*/) { return field.copyFrom(source); });
}

orvane::Result<> FieldWriter::reset(const FieldSet& fields)
{
    const auto toDefault = [](NxField& field, std::size_t /*number*/) {
        NxFieldContainer* const node = field.getContainer();
        const NxFieldData* const data = node->getFieldData();
        const NxField* const original = data->getDefault(data->getIndex(node, &field));
        return original != nullptr && field.copyFrom(*original);
    };
    return write(fields, toDefault, tr("Reset %1").arg(fields.name()));
}

orvane::Result<> FieldWriter::toggle(const FieldSet& fields)
{
    const bool on = fields.isMixed() || static_cast<const NxSFBool&>(fields.first()).getValue() == 0;
    return change(fields, [on](NxField& field) {
        static_cast<NxSFBool&>(field).setValue(on);
        return true;
    });
}

orvane::Result<> FieldWriter::setIgnored(const FieldSet& fields, bool ignored)
{
    end();
    push(std::make_unique<IgnoreCommand>(fields, ignored), {});
    Q_EMIT written(fields);
    return {};
}

orvane::Result<> FieldWriter::setAll(std::span<const Item> items, const QString& label)
{
    std::vector<FieldTrial> trials;
    for (const Item& item : items) {
        trials.emplace_back(item.fields.first());
        NxField* const spare = trials.back().field();
        if (spare == nullptr || !spare->set(VbString(item.text)))
            return orvane::Failure{orvane::refusedText(item.fields.first(), orvane::toQString(item.text))};
    }
    end();
    std::vector<std::unique_ptr<OrvCommand>> written;
    bool done = true;
    m_services.beginEdit(label);
    for (std::size_t i = 0; i < items.size() && done; ++i) {
        const NxField* const spare = trials[i].field();
        const auto copyTo = [spare](NxField& field, std::size_t /*number*/) { return field.copyFrom(*spare); };
        written.push_back(std::make_unique<FieldWriteCommand>(items[i].fields, copyTo, done));
        written.back()->execute();
        written.push_back(std::make_unique<IgnoreCommand>(items[i].fields, items[i].isIgnored));
        written.back()->execute();
    }
    if (!done)
        std::for_each(written.rbegin(), written.rend(), [](const auto& command) { command->undo(); });
    m_services.endEdit();
    if (!done)
        return orvane::Failure{tr("The fields can't be changed: the values don't fit in memory.")};
    // Where the journal doesn't undo, the commands do, in one step if they belong to one action of the user.
    for (auto& command : written) {
        if (!m_services.isUndoExact())
            m_services.pushCommand(command.release());
    }
    for (const Item& item : items)
        Q_EMIT this->written(item.fields);
    return {};
}

orvane::Result<> FieldWriter::change(const FieldSet& fields, const std::function<bool(NxField&)>& function)
{
    return write(fields, [&function](NxField& field, std::size_t /*number*/) { return function(field); });
}

orvane::Result<> FieldWriter::write(const FieldSet& fields, Write write, const QString& label)
{
    bool done = false;
    const FieldSet named = original(fields);
    auto command = std::make_unique<FieldWriteCommand>(pending(named), std::move(write), done);
    if (isLive() && named == m_live) {
        command->execute(); // `end` makes the step
    } else {
        end();
        push(std::move(command), label);
    }
    if (!done)
        return orvane::Failure{tr("%1 can't be changed: the values don't fit in memory.").arg(named.name())};
    announce(named);
    return {};
}

void FieldWriter::announce(const FieldSet& fields)
{
    if (isPending(fields))
        Q_EMIT pendingChanged();
    else
        Q_EMIT written(fields);
}

void FieldWriter::push(std::unique_ptr<OrvCommand> command, const QString& label)
{
    if (!m_services.isUndoExact()) {
        m_services.pushStep(command.release(), label);
        return;
    }
    // The journal records what the command does, so that one that changes nothing leaves nothing in the history.
    m_services.beginEdit(label);
    command->execute();
    m_services.endEdit();
}

orvane::Result<> FieldWriter::begin(const FieldSet& fields)
{
    const FieldSet live = original(fields);
    end();
    if (isDeferred(live) && makePending(live)) {
        m_live = live;
        Q_EMIT pendingChanged();
        return {};
    }
    if (auto result = record(live); !result)
        return result;
    m_live = live;
    m_services.beginEdit();
    return {};
}

orvane::Result<> FieldWriter::record(const FieldSet& fields)
{
    const auto recordOne = [this](NxField& field) {
        m_before.push_back(field.recordOfValue());
        return true;
    };
    for (NxField* const field : fields.fields()) {
        if (!meridane::withinMemory(field->valueBytes(), [&] { return recordOne(*field); })) {
            m_before.clear();
            return orvane::Failure{tr("%1 can't be changed: the values don't fit in memory.").arg(fields.name())};
        }
    }
    return {};
}

bool FieldWriter::isDeferred(const FieldSet& fields) const
{
    return m_deferral && !fields.isEmpty() && fields.count() <= mostDeferred && m_deferral(fields.first());
}

// False if there can't be a spare field for each: then the fields are written at once.
bool FieldWriter::makePending(const FieldSet& fields)
{
    const auto nodes = std::make_shared<FieldSet::Nodes>();
    NxField* first = nullptr;
    for (const NxField* const field : fields.fields()) {
        const FieldTrial trial(*field);
        if (trial.field() == nullptr || !trial.field()->copyFrom(*field))
            return false;
        if (first == nullptr)
            first = trial.field();
        nodes->emplace_back(trial.field()->getContainer());
    }
    m_pending = FieldSet(*first, nodes);
    return !m_pending.isEmpty();
}

const FieldSet& FieldWriter::pending(const FieldSet& fields) const
{
    return isPending(fields) ? m_pending : fields;
}

bool FieldWriter::isPending(const FieldSet& fields) const
{
    return isPending() && (fields == m_live || fields == m_pending);
}

const FieldSet& FieldWriter::original(const FieldSet& fields) const
{
    return isPending(fields) ? m_live : fields;
}

FieldWriter::MoverOf FieldWriter::componentMover(const NxField& like, int component)
{
    const auto* const components = meridane::FieldComponents::of(like);
    return [components, component](const NxField& field) -> Mover {
        return [components, component, start = components->get(field, 0, component)](NxField& moved, double delta) {
            if (!std::isfinite(start))
                return;
            const double value = std::clamp(start + delta, components->lowest(), components->highest());
            components->set(moved, 0, component, components->isWhole() ? std::round(value) : value);
        };
    };
}

void FieldWriter::beginDrag(const FieldSet& fields, int component)
{
    if (!fields.isEmpty() && meridane::FieldComponents::of(fields.first()) != nullptr)
        beginDrag(fields, componentMover(fields.first(), component));
}

void FieldWriter::beginDrag(const FieldSet& fields, const MoverOf& moverOf)
{
    if (fields.isEmpty() || !begin(fields))
        return;
    for (const NxField* const field : m_live.fields())
        m_movers.push_back(moverOf(*field));
}

void FieldWriter::drag(double delta)
{
    if (m_movers.empty())
        return;
    std::size_t number = 0;
    for (NxField* const field : pending(m_live).fields())
        m_movers[number++](*field, delta);
    announce(m_live);
}

void FieldWriter::end()
{
    if (!isLive())
        return;
    if (isPending())
        return writePending();
    // Where the journal doesn't undo, a command does.
    if (!m_services.isUndoExact())
        m_services.pushCommand(new FieldWriteCommand(std::exchange(m_before, {})));
    forgetLive();
}

void FieldWriter::writePending()
{
    const FieldSet fields = m_live;
    const FieldSet values = m_pending;
    forgetLive(); // from now on the fields themselves are written
    const auto isSame = [](const NxField* left, const NxField* right) { return left->isSame(*right); };
    if (std::ranges::equal(fields.fields(), values.fields(), isSame))
        return;
    const auto result = write(
        fields, [&values](NxField& field, std::size_t number) { return field.copyFrom(*values.fields()[number]); });
    if (!result)
        Q_EMIT failed(result.error());
}

void FieldWriter::cancel()
{
    for (const auto& record : m_before) {
        if (!record->isSameAsNow())
            record->field()->exchangeValue(*record);
    }
    forgetLive();
}

void FieldWriter::forgetLive()
{
    if (!isLive())
        return;
    m_before.clear();
    m_movers.clear();
    m_live = FieldSet();
    if (!isPending())
        return m_services.endEdit();
    m_pending = FieldSet();
    Q_EMIT pendingChanged();
}
