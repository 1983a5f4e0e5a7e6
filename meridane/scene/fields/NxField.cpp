#include "meridane/scene/fields/NxField.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/detail/IgnoredRecord.h"
#include "meridane/scene/text/TextReader.h"

#include <cassert>
#include <limits>
#include <typeinfo>
#include <utility>

NxType NxField::getClassTypeId()
{
    static const NxType type = NxType::registerClass("Field", NxTypedObject::getClassTypeId(), nullptr);
    return type;
}

NxField::~NxField()
{
    m_sensors.dyingReference();
}

void NxField::get(VbString& text) const
{
    std::string result;
    std::size_t position = 0;
    while (writeText(result, position, std::numeric_limits<std::size_t>::max())) { }
    text = VbString(std::move(result));
}

bool NxField::set(const VbString& text)
{
    meridane::TextReader reader(text.view());
    if (!meridane::withinMemory(text.view().size(), [this, &reader] { return assignText(reader); }))
        return false;
    touch();
    return true;
}

bool NxField::set(const char* text)
{
    return set(VbString(text));
}

void NxField::setIgnored(int flag)
{
    const bool ignored = flag != 0;
    if (ignored == m_ignored)
        return;
    if (!m_isIgnoredRecorded) {
        if (meridane::ChangeRecorder* const recorder = meridane::ChangeRecorder::of(m_container)) {
            recorder->add(std::make_unique<meridane::IgnoredRecord>(*this));
            m_isIgnoredRecorded = true;
        }
    }
    m_ignored = ignored;
    touch();
}

meridane::ChangeRecorder* NxField::recorder() const
{
    return m_isRecorded ? nullptr : meridane::ChangeRecorder::of(m_container);
}

void NxField::makeRecord()
{
    meridane::ChangeRecorder* const recorder = meridane::ChangeRecorder::of(m_container);
    if (recorder == nullptr)
        return;
    recorder->add(recordOfValue());
    m_isRecorded = true;
}

bool NxField::exchangeValue(meridane::ChangeRecord& record)
{
    assert(record.field() == this && record.kind() == meridane::ChangeRecord::Kind::Value);
    const bool fits = meridane::withinMemory(valueBytes(), [this] {
        recordValue();
        return true;
    });
    if (!fits)
        return false;
    record.exchange();
    touch();
    return true;
}

bool NxField::isDefault() const
{
    if (m_container == nullptr)
        return false;
    const NxFieldData* const data = m_container->getFieldData();
    const NxField* const original = data->getDefault(data->getIndex(m_container, this));
    return original != nullptr && isSame(*original);
}

bool NxField::isOfSameClass(const NxField& other) const
{
    const NxType type = getTypeId();
    return type == other.getTypeId() && (!type.isBad() || typeid(*this) == typeid(other));
}

void NxField::touch()
{
    m_sensors.notify();
    if (m_container != nullptr && m_container->isWatched())
        m_container->touch();
}
