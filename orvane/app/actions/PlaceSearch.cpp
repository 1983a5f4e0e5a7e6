#include "orvane/app/actions/PlaceSearch.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <algorithm>
#include <utility>

namespace {

/// A field that was found by its own name alone comes behind nodes that match as well.
constexpr int fieldLoss = 100;

bool isBetter(const PlaceSearch::Hit& left, const PlaceSearch::Hit& right)
{
    return left.score != right.score ? left.score > right.score : left.order < right.order;
}

std::string_view utf8NameOf(const NxNode& node)
{
    const std::string_view name = node.getName().view();
    return name.empty() ? std::string_view(node.getClassName()) : name;
}

} // namespace

QString PlaceSearch::nameOf(const NxNode& node)
{
    return orvane::toQString(utf8NameOf(node));
}

void PlaceSearch::start(const NxGroup* scene, const QString& text, const QHash<const void*, int>& preferred)
{
    m_hits.clear();
    m_fieldHits.clear();
    m_latestHits.reset();
    m_parents.clear();
    m_order = 0;
    m_isSorted = true;
    m_preferred = preferred;
    QString nodes = text.trimmed();
    const qsizetype dot = nodes.lastIndexOf(u'.');
    m_wantsField = dot >= 0 && dot > nodes.lastIndexOf(u'/');
    m_field = orvane::LetterMatch(m_wantsField ? nodes.mid(dot + 1) : nodes);
    if (m_wantsField)
        nodes.truncate(dot);
    QStringList steps = nodes.split(u'/', Qt::SkipEmptyParts);
    m_node = orvane::LetterMatch(steps.isEmpty() ? QString() : steps.takeLast());
    for (const QString& step : steps)
        m_parents.emplace_back(step);
    m_nodes = scene == nullptr ? nullptr : std::make_unique<meridane::NodeTraversal>(*scene);
}

bool PlaceSearch::work()
{
    constexpr int nodesAtOnce = 16;
    bool hasAdded = false;
    // The rest of a slice is for the rows that are shown.
    constexpr std::chrono::milliseconds length(3);
    const meridane::WorkBudget slice(length, m_clock);
    while (m_nodes != nullptr && !slice.isSpent()) {
        for (int i = 0; i < nodesAtOnce; ++i) {
            NxNode* const node = m_nodes->nextUse();
            if (node == nullptr) {
                m_nodes.reset();
                break;
            }
            ++m_order;
            hasAdded = visit(*node) || hasAdded;
        }
    }
    return hasAdded;
}

const std::vector<PlaceSearch::Hit>& PlaceSearch::hits()
{
    if (!m_isSorted)
        std::ranges::sort(m_hits, isBetter);
    m_isSorted = true;
    return m_hits;
}

bool PlaceSearch::visit(NxNode& node)
{
    bool hasAdded = false;
    const bool isMatch = m_node.mayMatch(utf8NameOf(node));
    const std::optional<int> score = isMatch ? m_node.score(nameOf(node)) : std::nullopt;
    if (score && (m_parents.empty() || matchesParents())) {
        const int preferred = m_preferred.value(&node);
        if (m_wantsField)
            return visitFields(node, *score + preferred);
        if (isGoodEnough(*score + preferred)) {
            add(*score + preferred, nullptr);
            hasAdded = true;
        }
    }
    // The name of a field alone.
    const bool isAlone = !m_wantsField && m_parents.empty() && !m_field.isEmpty();
    return (isAlone && visitFields(node, m_preferred.value(&node) - fieldLoss)) || hasAdded;
}

bool PlaceSearch::visitFields(NxNode& node, int score)
{
    bool hasAdded = false;
    for (const FieldHits::One& hit : fieldHits(node).fields) {
        NxField* const field = node.getFieldData()->getField(&node, hit.index);
        const int sum = score + hit.score + m_preferred.value(field);
        if (isGoodEnough(sum)) {
            add(sum, field);
            hasAdded = true;
        }
    }
    return hasAdded;
}

const PlaceSearch::FieldHits& PlaceSearch::fieldHits(NxNode& node)
{
    const NxFieldData* const data = node.getFieldData();
    if (m_latestHits != nullptr && data == m_latestData)
        return *m_latestHits;
    auto found = m_fieldHits.find(data);
    if (found == m_fieldHits.end()) {
        FieldHits hits;
        for (int i = 0; data != nullptr && i < data->getNumFields(); ++i) {
            if (const std::optional<int> score = m_field.score(orvane::toQString(data->getFieldName(i))))
                hits.fields.push_back({i, *score});
        }
        found = m_fieldHits.insert(data, std::make_shared<const FieldHits>(std::move(hits)));
    }
    m_latestData = data;
    m_latestHits = *found;
    return *m_latestHits;
}

/// Whether the nodes above the latest one have the steps of the text in their order.
bool PlaceSearch::matchesParents() const
{
    const std::vector<NxNode*> path = m_nodes->path();
    auto step = m_parents.rbegin();
    for (std::size_t i = path.size() - 1; i > 0 && step != m_parents.rend(); --i) {
        const NxNode& parent = *path[i - 1];
        if (step->mayMatch(utf8NameOf(parent)) && step->score(nameOf(parent)))
            ++step;
    }
    return step == m_parents.rend();
}

bool PlaceSearch::isGoodEnough(int score) const
{
    // What comes later in the scene must be better.
    return m_hits.size() < mostHits || score > (m_isSorted ? m_hits.back() : m_hits.front()).score;
}

void PlaceSearch::add(int score, NxField* field)
{
    if (m_isSorted)
        std::ranges::make_heap(m_hits, isBetter);
    m_isSorted = false;
    if (m_hits.size() == mostHits) {
        std::ranges::pop_heap(m_hits, isBetter);
        m_hits.pop_back();
    }
    m_hits.push_back({score, m_order, m_nodes->path(), field});
    std::ranges::push_heap(m_hits, isBetter);
}
