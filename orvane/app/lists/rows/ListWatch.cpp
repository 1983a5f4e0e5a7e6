#include "orvane/app/lists/rows/ListWatch.h"

#include "orvane/extender/OrvDocument.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/journal/Journal.h"

#include <numeric>
#include <utility>

namespace {

/// More changes of the number of rows than this are followed as one of the whole list.
constexpr std::size_t mostSplices = 64;

} // namespace

ListWatch::ListWatch(OrvDocument& document, QObject* parent)
    : QObject(parent)
    , m_document(document)
    , m_sensor([](void* data, NxSensor* /*sensor*/) { static_cast<ListWatch*>(data)->report(); }, this)
{
    m_splices.reserve(mostSplices);
    connect(&document, &OrvDocument::opened, this, &ListWatch::listen);
    connect(&document, &OrvDocument::aboutToClose, this, &ListWatch::leave);
    listen();
}

ListWatch::~ListWatch()
{
    leave();
}

void ListWatch::listen()
{
    if (m_document.journal() != nullptr)
        m_document.journal()->addListener(*this);
}

void ListWatch::leave()
{
    if (m_document.journal() != nullptr)
        m_document.journal()->removeListener(*this);
}

void ListWatch::watch(NxMField* list)
{
    m_list = list;
    m_sensor.attach(list);
    m_splices.clear();
    m_isReplaced = false;
    m_count = list != nullptr ? list->getNum() : 0;
    ++m_revision;
}

void ListWatch::aboutToChange(const meridane::PlaceChange& change) noexcept
{
    if (change.field == nullptr || change.field != m_list)
        return;
    ++m_revision;
    if (change.kind == meridane::ChangeRecord::Kind::Value || m_splices.size() == mostSplices)
        m_isReplaced = true;
    else if (change.kind == meridane::ChangeRecord::Kind::Rows && change.removed != change.inserted)
        m_splices.push_back(
            {static_cast<int>(change.start), static_cast<int>(change.removed), static_cast<int>(change.inserted)});
}

void ListWatch::report()
{
    ++m_revision;
    const int count = m_list->getNum();
    const int expected = std::accumulate(m_splices.begin(), m_splices.end(), m_count,
        [](int rows, const RowSplice& splice) { return rows + splice.inserted - splice.removed; });
    std::vector<RowSplice> splices(m_splices);
    if (std::exchange(m_isReplaced, false) || expected != count)
        splices = {{0, m_count, count}};
    m_splices.clear();
    m_count = count;
    Q_EMIT changed(splices);
}
