// Scenes of groups that are used several times, as --list prints them: the first byte is the number of groups, each
// further pair of bytes puts one of them into another. Each group is listed in full once, and each path leads to the
// node that it is printed for.

#include "Fuzz.h"

#include "orvane/app/command_line/SceneListing.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace {

// The last group is the scene itself. A group holds only those of lower numbers, so that none holds itself.
std::vector<NxRef<NxGroup>> makeGroups(const std::uint8_t* bytes, std::size_t count)
{
    constexpr std::size_t maxGroups = 100;
    std::vector<NxRef<NxGroup>> groups(count == 0 ? 1 : 1 + bytes[0] % maxGroups);
    for (std::size_t number = 0; number < groups.size(); ++number) {
        groups[number] = new NxGroup;
        if (number % 3 != 0) // some without a name, and some with the same one
            groups[number]->setName(VbString(number % 3 == 1 ? "a \"b\"" : std::to_string(number).c_str()));
    }
    for (std::size_t place = 1; place + 1 < count; place += 2) {
        const auto [lower, upper] = std::minmax({bytes[place] % groups.size(), bytes[place + 1] % groups.size()});
        if (lower != upper)
            groups[upper]->addChild(groups[lower].get());
    }
    return groups;
}

// The places of nodes in the groups that can be reached, each group counted once.
qsizetype countPlaces(const NxGroup& scene)
{
    std::vector<const NxNode*> open{&scene};
    std::unordered_set<const NxNode*> seen;
    qsizetype places = 0;
    while (!open.empty()) {
        const NxNode* const node = open.back();
        open.pop_back();
        for (const NxNode* const child : node->getChildren()) {
            ++places;
            if (seen.insert(child).second)
                open.push_back(child);
        }
    }
    return places;
}

const NxFieldContainer* nodeAt(NxGroup& scene, const QString& path)
{
    const NxScenePath::Target target = NxScenePath::find(&scene, path.toStdString());
    fuzz::check(target.error.empty() && !target.nodes.empty(), "a path that is printed leads to a node");
    return target.nodes.back();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const std::vector<NxRef<NxGroup>> groups = makeGroups(bytes, count);
    NxGroup& scene = *groups.back();
    QString text;
    QTextStream output(&text);
    SceneListing(&scene, output).print();

    qsizetype nodes = 0;
    std::unordered_set<const NxFieldContainer*> listed;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u'\t');
        if (parts.size() < 2 || parts[1] != QStringLiteral("Group"))
            continue; // a field
        ++nodes;
        const NxFieldContainer* const node = nodeAt(scene, parts[0]);
        const bool isFirst = parts.size() == 2;
        fuzz::check(listed.insert(node).second == isFirst, "a node is listed in full in its first place only");
        if (!isFirst)
            fuzz::check(nodeAt(scene, parts[2].mid(8)) == node, "a further place names the first one");
    }
    fuzz::check(nodes == countPlaces(scene), "each place of a group that is listed has one line");
    return 0;
}
