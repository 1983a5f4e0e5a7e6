// The table of a list with a million rows, against a bare table on a model of the same texts, and its formulas against
// a bare loop of the library that evaluates them.

#include "Figure.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/files/FileJob.h"
#include "orvane/app/lists/ListPanel.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/ShownRows.h"
#include "orvane/app/lists/jobs/ApplyJob.h"
#include "orvane/app/lists/jobs/RowsJob.h"
#include "orvane/app/lists/jobs/StatisticsJob.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>

#include <muParser.h>

namespace {

constexpr int oneMillion = 1'000'000;

/// The least that a model of the same cells can do.
class BareModel : public QAbstractTableModel {
public:
    explicit BareModel(const NxMFVec3f& list)
        : m_list(list)
    {
    }
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() || !m_shows ? 0 : m_list.getNum();
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 3; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return QString::number(static_cast<double>(m_list[index.row()][static_cast<std::size_t>(index.column())]));
    }
    void show(bool shows)
    {
        beginResetModel();
        m_shows = shows;
        endResetModel();
    }

private:
    const NxMFVec3f& m_list;
    bool m_shows = false;
};

class RowsRun {
public:
    RowsRun()
        : m_scene(new NxGroup)
        , m_node(new NxFieldGallery)
        , bareModel(list())
    {
        m_scene->addChild(m_node.get());
        std::vector<VbVec3f> values(oneMillion);
        for (int i = 0; i < oneMillion; ++i) {
            const auto angle = static_cast<float>(i) * 0.01F;
            values[static_cast<std::size_t>(i)] = {std::cos(angle), angle, std::sin(angle)};
        }
        list().setValues(std::move(values));
        services.document().open(OrvDocument::makeJournal(*m_scene));
        // They are computed in the background, and are measured by themselves.
        m_settings.setValue(QStringLiteral("lists/statistics"), false);
        panel = std::make_unique<ListPanel>(services, m_settings);
        panel->resize(900, 500);
        panel->show();
        panel->setList(&list());
        bench::settle();
        bare.setModel(&bareModel);
        bare.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        bare.verticalHeader()->setDefaultSectionSize(panel->view()->verticalHeader()->defaultSectionSize());
        bare.setFixedSize(panel->view()->size());
        bare.show();
        bench::settle();
    }
    ~RowsRun()
    {
        panel.reset();
        services.document().close();
    }
    RowsRun(const RowsRun&) = delete;
    RowsRun& operator=(const RowsRun&) = delete;

    NxMFVec3f& list() { return m_node->mfVec3f; }

    OrvServices services;

private:
    AppSettings m_settings{AppSettings::Mode::None};
    NxRef<NxGroup> m_scene;
    NxRef<NxFieldGallery> m_node;

public:
    std::unique_ptr<ListPanel> panel;
    BareModel bareModel;
    QTableView bare;
};

/// The statistics are computed in the background, behind the picture.
void measureFirstPicture(RowsRun& run)
{
    auto* const statistics = run.panel->findChild<QAction*>(QStringLiteral("list.showStatistics"));
    const auto measure = [&run, statistics](bool showsStatistics) {
        statistics->setChecked(showsStatistics);
        run.panel->model()->setList(nullptr);
        bench::settle();
        return bench::secondsToFirstPaint(
            run.panel->view()->viewport(), [&run] { run.panel->model()->setList(&run.list()); });
    };
    bench::compare(
        "list of 1,000,000 rows: first painted, with statistics", 1.15, 21, [&measure] { return measure(true); },
        [&measure] { return measure(false); });
    statistics->setChecked(false);
}

void measureTable(RowsRun& run)
{
    bench::compare(
        "list of 1,000,000 rows: selected to painted", 1.15, 21,
        [&run] {
            run.panel->model()->setList(nullptr);
            bench::settle();
            return bench::secondsToPainted(
                run.panel->view()->viewport(), [&run] { run.panel->model()->setList(&run.list()); });
        },
        [&run] {
            run.bareModel.show(false);
            bench::settle();
            return bench::secondsToPainted(run.bare.viewport(), [&run] { run.bareModel.show(true); });
        });
    const auto scroll = [](QTableView& view) {
        constexpr int frames = 100;
        QScrollBar* const bar = view.verticalScrollBar();
        return bench::secondsToPainted(view.viewport(), [bar] {
            for (int frame = 0; frame < frames; ++frame) {
                bar->setValue(static_cast<int>(static_cast<long long>(bar->maximum()) * frame / frames));
                bench::settle();
            }
        });
    };
    bench::compare(
        "list of 1,000,000 rows: scrolled through", 1.15, 9, [&] { return scroll(*run.panel->view()); },
        [&] { return scroll(run.bare); });
}

void measureFormula(RowsRun& run)
{
    std::vector<int> rows(oneMillion);
    for (int row = 0; row < oneMillion; ++row)
        rows[static_cast<std::size_t>(row)] = row;
    const auto formula = RowExpression::parse(
        QStringLiteral("x * 2 + sin(y) * i"), run.panel->model()->columns(), RowExpression::Use::Column);
    bench::compare(
        "formula over 1,000,000 rows", 1.5, 9,
        [&] {
            ApplyJob job(run.list(), rows, formula.value());
            return bench::seconds([&job] { job.runAll(); });
        },
        [&] {
            double x = 0;
            double y = 0;
            double i = 0;
            mu::Parser parser;
            parser.DefineVar("x", &x);
            parser.DefineVar("y", &y);
            parser.DefineVar("i", &i);
            parser.SetExpr("x * 2 + sin(y) * i");
            std::vector<double> values(oneMillion);
            return bench::seconds([&] {
                for (int row = 0; row < oneMillion; ++row) {
                    x = static_cast<double>(run.list()[row][0]);
                    y = static_cast<double>(run.list()[row][1]);
                    i = row;
                    values[static_cast<std::size_t>(row)] = parser.Eval();
                }
            });
        });
}

/// How long the slices of a job are, in milliseconds: the longest, and that of all. Medians of some runs, since other
/// programs interrupt slices too.
void measureSlices(const std::string& name, const std::function<std::unique_ptr<FileJob>()>& makeJob)
{
    using Clock = std::chrono::steady_clock;
    constexpr double bar = 8;
    constexpr std::size_t runs = 9;
    const auto milliseconds
        = [](Clock::duration time) { return std::chrono::duration<double, std::milli>(time).count(); };
    std::vector<double> longests;
    std::vector<double> wholes;
    for (std::size_t i = 0; i < runs; ++i) {
        const std::unique_ptr<FileJob> job = makeJob();
        bool hasEnded = false;
        QObject::connect(job.get(), &FileJob::finished, [&hasEnded] { hasEnded = true; });
        const Clock::time_point start = Clock::now();
        double longest = 0;
        job->start();
        while (!hasEnded) {
            const Clock::time_point begin = Clock::now();
            QCoreApplication::processEvents();
            longest = std::max(longest, milliseconds(Clock::now() - begin));
        }
        wholes.push_back(milliseconds(Clock::now() - start));
        longests.push_back(longest);
    }
    const auto median = [](std::vector<double>& values) {
        std::ranges::sort(values);
        return values[values.size() / 2];
    };
    bench::report({name + ": longest slice", "ms", median(longests), 0, bar});
    bench::report({name + ": in all", "ms", median(wholes), 0, 0});
}

void measureJobs(RowsRun& run)
{
    measureSlices("statistics of 1,000,000 rows", [&run] {
        return std::make_unique<StatisticsJob>(run.list(), RowRuns{{0, oneMillion}});
    });
    const auto expression = RowExpression::parse(
        QStringLiteral("x > 0 and z < 0.5"), run.panel->model()->columns(), RowExpression::Use::Filter);
    std::vector<double> values;
    const auto filter = [&, formula = expression.value()](int first, std::span<bool> passes) mutable {
        values.resize(passes.size());
        auto result = formula.evaluate(run.list(), first, values);
        std::ranges::transform(values, passes.begin(), [](double value) { return value != 0; });
        return result;
    };
    measureSlices("filter of 1,000,000 rows",
        [&] { return std::make_unique<RowsJob>(run.list(), RowRange(), filter, RowsJob::Order()); });
    measureSlices("sorting 1,000,000 rows", [&run] {
        return std::make_unique<RowsJob>(run.list(), RowRange(), RowsJob::Filter(), RowsJob::Order{0, false});
    });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    RowsRun run;
    measureTable(run);
    measureFirstPicture(run);
    measureFormula(run);
    measureJobs(run);
    return 0;
}
