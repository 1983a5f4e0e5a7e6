// The field table as nodes are selected, against a bare tree view of the same rows and texts.

#include "Figure.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QApplication>
#include <QHeaderView>
#include <QTreeView>

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int rounds = 15;
constexpr std::size_t thousand = 1000;

/// The names of a thousand fields, which live as long as the program.
const char* fieldName(std::size_t number)
{
    static const std::vector<std::string> names = [] {
        std::vector<std::string> made;
        for (std::size_t i = 0; i < thousand; ++i)
            made.push_back("field" + std::to_string(i));
        return made;
    }();
    return names[number].c_str();
}

/// A node with a thousand fields.
class WideNode final : public NxNode {
public:
    WideNode()
        : WideNode(std::make_index_sequence<thousand>())
    {
    }

    [[nodiscard]] NxType getTypeId() const override
    {
        static const NxType type = NxType::registerClass(
            "WideNode", NxNode::getClassTypeId(), []() -> NxTypedObject* { return new WideNode; });
        return type;
    }
    [[nodiscard]] NxFieldData* getFieldData() override
    {
        static NxFieldData data([]() -> NxFieldContainer* { return new WideNode; });
        return &data;
    }

private:
    template <std::size_t... numbers>
    explicit WideNode(std::index_sequence<numbers...> /*unused*/)
        : m_fields{NxSFFloat(this, fieldName(numbers))...}
    {
    }

    std::array<NxSFFloat, thousand> m_fields;
};

/// A tree of texts without code of this project: groups of rows.
class BareModel : public QAbstractItemModel {
public:
    using Row = std::array<QString, 2>;
    using Groups = std::vector<std::pair<Row, std::vector<Row>>>;

    void show(const Groups& groups)
    {
        beginResetModel();
        m_groups = &groups;
        endResetModel();
    }

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override
    {
        return createIndex(row, column, static_cast<quintptr>(parent.isValid() ? parent.row() + 1 : 0));
    }
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override
    {
        return index.internalId() == 0 ? QModelIndex()
                                       : createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr{0});
    }
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override
    {
        if (m_groups == nullptr || parent.internalId() != 0)
            return 0;
        return static_cast<int>(
            parent.isValid() ? (*m_groups)[static_cast<std::size_t>(parent.row())].second.size() : m_groups->size());
    }
    [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override { return 2; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        const auto row = static_cast<std::size_t>(index.row());
        const auto column = static_cast<std::size_t>(index.column());
        return index.internalId() == 0 ? (*m_groups)[row].first[column]
                                       : (*m_groups)[index.internalId() - 1].second[row][column];
    }

private:
    const Groups* m_groups = nullptr;
};

/// The same rows and texts as the model shows.
BareModel::Groups textsOf(const FieldTableModel& model)
{
    const auto row = [](const QModelIndex& index) {
        return BareModel::Row{
            index.data().toString(), index.siblingAtColumn(FieldTableModel::ValueColumn).data().toString()};
    };
    BareModel::Groups groups;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex group = model.index(i, 0);
        groups.push_back({row(group), {}});
        for (int k = 0; k < model.rowCount(group); ++k)
            groups.back().second.push_back(row(model.index(k, 0, group)));
    }
    return groups;
}

/// The panel and a bare view of the same size, in two windows.
class TableRun {
public:
    TableRun()
        : panel(m_services, m_settings)
    {
        panel.resize(500, 900);
        panel.show();
        bench::settle();
        m_bare.setModel(&m_bareModel);
        m_bare.setUniformRowHeights(true);
        m_bare.header()->setSectionResizeMode(QHeaderView::Interactive);
    }

    /// How long it takes to show one of two nodes after the other, and what a bare view takes.
    void compare(const std::string& name, const std::array<NxRef<NxNode>, 2>& nodes)
    {
        std::array<BareModel::Groups, 2> texts;
        for (const std::size_t i : {0U, 1U}) {
            panel.setNode(nodes[i].get());
            texts[i] = textsOf(*panel.model());
        }
        bench::settle();
        m_bare.resize(panel.view()->size());
        m_bare.show();
        bench::settle();
        std::size_t next = 0;
        const auto own = [&] {
            next = 1 - next;
            return bench::secondsToPainted(panel.view()->viewport(), [&] { panel.setNode(nodes[next].get()); });
        };
        const auto bare = [&] {
            return bench::secondsToPainted(m_bare.viewport(), [&] {
                m_bareModel.show(texts[next]);
                m_bare.expandAll();
            });
        };
        bench::compare(name, 1.5, rounds, own, bare);
    }

    /// The median time to show one of two selections after the other, in milliseconds.
    void report(const std::string& name, double bar, const std::function<void(std::size_t)>& show)
    {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            const auto which = static_cast<std::size_t>(round % 2);
            times.push_back(bench::secondsToPainted(panel.view()->viewport(), [&] { show(which); }) * 1000);
        }
        bench::report({name, "ms", bench::median(times), 0, bar});
    }

private:
    OrvServices m_services;
    AppSettings m_settings{AppSettings::Mode::None};
    BareModel m_bareModel;
    QTreeView m_bare;

public:
    FieldPanel panel;
};

std::shared_ptr<const FieldSet::Nodes> manyLights(int count)
{
    auto nodes = std::make_shared<FieldSet::Nodes>();
    for (int i = 0; i < count; ++i)
        nodes->emplace_back(new NxSpotLight);
    return nodes;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    TableRun run;
    const std::array<NxRef<NxNode>, 2> galleries{new NxFieldGallery, new NxFieldGallery};
    run.compare("select a node with 46 fields, painted", galleries);
    const std::array<NxRef<NxNode>, 2> lights{new NxSpotLight, new NxSpotLight};
    run.compare("select a light, painted", lights);
    const std::array<NxRef<NxNode>, 2> wide{new WideNode, new WideNode};
    run.report("select a node with 1,000 fields, painted", 16,
        [&](std::size_t which) { run.panel.setNode(wide[which].get()); });
    const std::array many{manyLights(10'000), manyLights(10'000)};
    run.report(
        "select 10,000 nodes, common fields painted", 100, [&](std::size_t which) { run.panel.setNodes(many[which]); });
    const std::array most{manyLights(100'000), manyLights(100'000)};
    run.report(
        "select 100,000 nodes, common fields painted", 0, [&](std::size_t which) { run.panel.setNodes(most[which]); });
    return 0;
}
