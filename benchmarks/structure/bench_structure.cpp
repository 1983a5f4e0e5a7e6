// Removing, duplicating and moving 100,000 selected nodes, against the same done with the toolkit alone.
//
// The baseline is the same operation, not a shorter one: it is given rows of a group, as the tool is, finds out what
// stays, changes each group once, copies nodes of any class with all fields, gives copies names that no sibling has,
// and a journal records what is needed to undo it. So both end with equal scenes, which is checked.
//
// "shown" compares the whole that a user waits for, with a tree in which the group is unfolded and its rows are
// selected. The baseline has the same tree, since Qt's view lays its rows out again whoever changes them. The other
// figures are without trees.

#include "Timing.h"

#include "orvane/app/scene/Session.h"
#include "orvane/app/scene/UpdateSceneCommand.h"
#include "orvane/app/structure/NodeEditor.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/TreeNodes.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace {

constexpr int siblings = 200'000;
constexpr int selected = 100'000;
using Rows = std::vector<int>;

/// A scene with two groups, one of them full.
NxRef<NxGroup> makeScene()
{
    NxRef<NxGroup> scene(new NxGroup);
    const NxRef<NxGroup> full(new NxGroup);
    std::vector<NxNode*> nodes;
    for (int i = 0; i < siblings; ++i) {
        auto* const node = new NxTransform;
        node->setName(VbString("part " + std::to_string(i)));
        node->translation.setValue(VbVec3f(static_cast<float>(i), 1, 2));
        nodes.push_back(node);
    }
    full->replaceChildren(0, 0, nodes);
    scene->addChild(full.get());
    scene->addChild(new NxGroup);
    return scene;
}

NxGroup& groupOf(NxGroup& scene, int index)
{
    return static_cast<NxGroup&>(*scene.getChild(index));
}

/// Rows of the full group: as many as are selected, `step` apart.
Rows rowsOf(int step)
{
    Rows rows;
    for (int i = 0; i < selected; ++i)
        rows.push_back(i * step + (step == 1 ? siblings / 4 : 0));
    return rows;
}

void settle()
{
    while (NxDelayQueue::getDefault().process()) { }
    QCoreApplication::processEvents();
}

std::vector<NxNode*> chosen(const NxGroup& group, const Rows& rows)
{
    std::vector<NxNode*> nodes;
    for (const int row : rows)
        nodes.push_back(group.getChild(row));
    return nodes;
}

void removeRows(NxGroup& group, const Rows& rows)
{
    std::vector<NxNode*> staying;
    auto next = rows.begin();
    for (int row = rows.front(); row <= rows.back(); ++row) {
        if (row == *next)
            ++next;
        else
            staying.push_back(group.getChild(row));
    }
    group.replaceChildren(rows.front(), rows.back() - rows.front() + 1, staying);
}

NxNode* copyOf(NxNode& node)
{
    auto* const copy = static_cast<NxNode*>(static_cast<NxTypedObject*>(node.getTypeId().createInstance(nullptr)));
    const NxFieldData& data = *node.getFieldData();
    for (int i = 0; i < data.getNumFields(); ++i) {
        const NxField& from = *data.getField(&node, i);
        NxField& to = *data.getField(copy, i);
        if (!from.isSame(to))
            to.copyFrom(from);
        if (from.isIgnored())
            to.setIgnored(1);
    }
    return copy;
}

/// The largest number at the end of a name.
int largestNumber(const NxGroup& group)
{
    int largest = 0;
    for (const NxNode* const child : group.getChildren()) {
        const std::string_view name = child->getName().view();
        int number = 0;
        const std::size_t digits = name.rfind(' ') + 1;
        std::from_chars(name.data() + digits, name.data() + name.size(), number);
        largest = std::max(largest, number);
    }
    return largest;
}

/// The three operations with the toolkit alone, on the groups of a scene. `rows` are those of the full group.
struct Plain {
    static void remove(NxGroup& scene, const Rows& rows) { removeRows(groupOf(scene, 0), rows); }
    static void duplicate(NxGroup& scene, const Rows& rows)
    {
        NxGroup& full = groupOf(scene, 0);
        int number = largestNumber(full);
        std::vector<NxNode*> copies;
        for (NxNode* const node : chosen(full, rows)) {
            copies.push_back(copyOf(*node));
            copies.back()->setName(VbString("part " + std::to_string(++number)));
        }
        full.replaceChildren(rows.back() + 1, 0, copies);
    }
    static void move(NxGroup& scene, const Rows& rows)
    {
        NxGroup& full = groupOf(scene, 0);
        const std::vector<NxNode*> nodes = chosen(full, rows);
        const std::vector<NxRef<NxNode>> held(nodes.begin(), nodes.end());
        removeRows(full, rows);
        groupOf(scene, 1).replaceChildren(0, 0, nodes);
    }
};

/// The same by what the tool's actions call.
struct Edits {
    static MadeEdit remove(NxGroup& scene, const meridane::NodeSet& nodes) { return NodeEdits(scene).remove(nodes); }
    static MadeEdit duplicate(NxGroup& scene, const meridane::NodeSet& nodes)
    {
        return NodeEdits(scene).duplicate(nodes);
    }
    static MadeEdit move(NxGroup& scene, const meridane::NodeSet& nodes)
    {
        return NodeEdits(scene).move(nodes, {{&scene, &groupOf(scene, 1)}, {1}, 0}, NodePlaces::Keep);
    }
};

/// An operation in both ways.
struct Operation {
    std::string name;
    void (*plain)(NxGroup& scene, const Rows& rows);
    MadeEdit (*make)(NxGroup& scene, const meridane::NodeSet& nodes);
    Rows rows;
};

meridane::NodeSet setOf(NxGroup& scene, const Rows& rows)
{
    return {{{&scene, &groupOf(scene, 0)}, {0}, rows}};
}

/// Makes and undoes an operation. Each object is used once.
class Side {
public:
    Side() = default;
    virtual ~Side() = default;
    Side(const Side&) = delete;
    Side& operator=(const Side&) = delete;

    virtual double apply(const Operation& operation) = 0;
    virtual double undo() = 0;
    [[nodiscard]] virtual NxGroup& scene() = 0;
};

/// The toolkit alone: a scene, and a journal that records its changes.
class Toolkit final : public Side {
public:
    Toolkit()
        : m_scene(makeScene())
        , m_journal(*m_scene)
    {
        while (m_journal.run(std::chrono::hours(1))) { }
        m_journal.record();
    }

    double apply(const Operation& operation) override
    {
        return bench::seconds([&] {
            operation.plain(*m_scene, operation.rows);
            m_step = m_journal.finishStep();
            settle();
        });
    }
    double undo() override
    {
        return bench::seconds([this] {
            m_step->undo();
            settle();
        });
    }
    NxGroup& scene() override { return *m_scene; }

private:
    NxRef<NxGroup> m_scene;
    meridane::Journal m_journal;
    std::optional<meridane::JournalStep> m_step;
};

/// The tool's edits as steps of its history, without a window.
class Steps final : public Side {
public:
    Steps()
        : m_session(AppSettings::Mode::None)
    {
        m_session.document().open(makeScene(), {});
        settle();
    }

    double apply(const Operation& operation) override
    {
        return bench::seconds([&] {
            MadeEdit edit = operation.make(scene(), setOf(scene(), operation.rows));
            NodeEdit made = std::move(edit).value();
            m_session.services().pushStep(
                new UpdateSceneCommand(std::move(made.changes), UpdateSceneCommand::Undo::ByHistory,
                    m_session.disposal(), std::make_shared<bool>(true)),
                made.label);
            settle();
        });
    }
    double undo() override
    {
        return bench::seconds([this] {
            m_session.services().undo();
            settle();
        });
    }
    NxGroup& scene() override { return *m_session.document().scene(); }

private:
    Session m_session;
};

/// A tree in which the rows of an operation are unfolded and selected.
class Shown : public Side {
public:
    explicit Shown(const Rows& rows)
        : m_session(AppSettings::Mode::None)
    {
        m_session.document().open(makeScene(), {});
        m_tree.setScene(&scene());
        m_tree.resize(400, 800);
        m_tree.show();
        orvane::selectNodes(m_tree, setOf(scene(), rows));
        settle();
    }
    ~Shown() override { m_tree.setScene(nullptr); }

    double undo() override
    {
        return bench::seconds([this] {
            m_session.services().undo();
            settle();
        });
    }
    NxGroup& scene() override { return *m_session.document().scene(); }

protected:
    Session m_session;
    SceneTreePanel m_tree;
};

/// The change is made with the toolkit alone; the tree follows it.
class ToolkitShown final : public Shown {
public:
    using Shown::Shown;

    double apply(const Operation& operation) override
    {
        return bench::seconds([&] {
            operation.plain(scene(), operation.rows);
            settle();
        });
    }
};

/// All that the tool does when the user presses the key.
class Tool final : public Shown {
public:
    explicit Tool(const Rows& rows)
        : Shown(rows)
        , m_editor(m_session, &m_tree)
    {
    }

    double apply(const Operation& operation) override
    {
        return bench::seconds([&] {
            m_editor.apply(operation.make(scene(), m_editor.selected()));
            settle();
        });
    }

private:
    NodeEditor m_editor;
};

using Make = std::function<std::unique_ptr<Side>()>;

std::string resultOf(Side& side, const Operation& operation, bool isUndone)
{
    side.apply(operation);
    if (isUndone)
        side.undo();
    return NxSceneWriter::toText(&side.scene());
}

void compare(const Operation& operation, const std::string& addition, const Make& work, const Make& baseline)
{
    constexpr double bar = 3;
    constexpr int rounds = 5;
    for (const bool isUndone : {false, true}) {
        std::unique_ptr<Side> side = work();
        const std::string result = resultOf(*side, operation, isUndone);
        side.reset(); // one journal records at a time
        side = baseline();
        if (resultOf(*side, operation, isUndone) != result)
            qFatal("%s: the two sides make different scenes", operation.name.c_str());
    }
    const auto applied = [&operation](const Make& make) { return [&] { return make()->apply(operation); }; };
    const auto undone = [&operation](const Make& make) {
        return [&] {
            const std::unique_ptr<Side> side = make();
            side->apply(operation);
            return side->undo();
        };
    };
    const std::string name = "structure: " + operation.name + addition;
    bench::compare(name, bar, rounds, applied(work), applied(baseline));
    bench::compare(name + ", undone", bar, rounds, undone(work), undone(baseline));
}

template <typename Kind>
std::unique_ptr<Side> make()
{
    return std::make_unique<Kind>();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const std::array operations{
        Operation{"remove 100,000 nodes", &Plain::remove, &Edits::remove, rowsOf(1)},
        Operation{"remove every other of 200,000 nodes", &Plain::remove, &Edits::remove, rowsOf(2)},
        Operation{"duplicate 100,000 nodes", &Plain::duplicate, &Edits::duplicate, rowsOf(1)},
        Operation{"move 100,000 nodes to another group", &Plain::move, &Edits::move, rowsOf(1)},
    };
    for (const Operation& operation : operations) {
        compare(operation, "", &make<Steps>, &make<Toolkit>);
        compare(
            operation, ", shown", [&operation] { return std::make_unique<Tool>(operation.rows); },
            [&operation] { return std::make_unique<ToolkitShown>(operation.rows); });
    }
    return 0;
}
