// Lists of many values in their editor, against a bare table of the same size that paints the same texts.

#include "BareTable.h"
#include "EditorHost.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/OrvMFDeleteRowsCommand.h"
#include "Figure.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/extender/VbText.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include <numeric>
#include <string>
#include <vector>

#include <malloc.h>

namespace {

using bench::BareTable;
using bench::EditorHost;

constexpr int oneMillion = 1'000'000;
constexpr int tenMillions = 10'000'000;

std::string millions(int rows)
{
    return std::to_string(rows / oneMillion) + ",000,000 rows";
}

void fill(NxMFInt32& field, int rows)
{
    std::vector<int> values(static_cast<std::size_t>(rows));
    std::iota(values.begin(), values.end(), 0);
    field.setValues(std::move(values));
}

/// The editor of a list in its dock, and beside it a window with a bare table that paints the same texts.
class ListRun {
public:
    ListRun()
        : bare([this](int row) { return rowText(row); })
    {
        m_bareDock->setWidget(&bare);
        m_bareWindow.show();
        fill(field(), 1);
        host.services.selectField(&field());
        bench::settle();
        table = host.dock->findChild<DvMFieldTable*>();
        matchViews();
    }
    ~ListRun()
    {
        bare.setParent(nullptr);
        m_other.setParent(nullptr);
    }
    ListRun(const ListRun&) = delete;
    ListRun& operator=(const ListRun&) = delete;

    /// Gives the bare table the size of the other, so that both show the same number of rows and cells of the same
    /// width.
    void matchViews()
    {
        bench::settle();
        bare.setFixedSize(table->size());
        bare.setColumnWidth(0, table->columnWidth(0));
        bench::settle();
    }
    NxMFInt32& field() { return host.node->mfInt32; }
    /// Shows another field, with both tables empty.
    void leave()
    {
        host.services.selectField(&host.node->sfName);
        table->setNumRows(0);
        bare.setRowCount(0);
        m_bareDock->setWidget(&m_other);
        m_other.show();
        bench::settle();
    }
    void selectList() { host.services.selectField(&field()); }
    /// The same with the bare table: it comes into its dock and gets its rows.
    void selectBare(int rows)
    {
        bare.setRowCount(rows);
        m_bareDock->setWidget(&bare);
        bare.show();
    }

    EditorHost host;
    DvMFieldTable* table = nullptr;
    BareTable bare;

private:
    QString rowText(int row)
    {
        VbString text;
        field().get1(row, text);
        return orvane::toQString(text);
    }

    bench::DockWindow m_bareWindow;
    QDockWidget* m_bareDock = m_bareWindow.addDock();
    QLineEdit m_other;
};

void measureSelection(ListRun& run, int rows, int rounds)
{
    fill(run.field(), rows);
    bench::compare(
        "list selected to painted: " + millions(rows), 1.15, rounds,
        [&run] {
            run.leave();
            return bench::secondsToPainted(run.table->viewport(), [&run] { run.selectList(); });
        },
        [&run, rows] {
            run.leave();
            return bench::secondsToPainted(run.bare.viewport(), [&run, rows] { run.selectBare(rows); });
        });
}

double heapGrowth(const std::function<void()>& action)
{
    const struct mallinfo2 before = mallinfo2();
    action();
    bench::settle();
    const struct mallinfo2 after = mallinfo2();
    // Large blocks come from the system, one by one.
    return static_cast<double>(after.uordblks + after.hblkhd) - static_cast<double>(before.uordblks + before.hblkhd);
}

/// In new tables, because a table keeps the memory of earlier rows.
void measureMemory(int rows)
{
    ListRun run;
    run.leave();
    fill(run.field(), rows);
    const double own = heapGrowth([&run] { run.selectList(); });
    const double bare = heapGrowth([&run, rows] { run.selectBare(rows); });
    bench::report({"list selected: memory, " + millions(rows), "bytes", own, bare, 1.05});
}

/// Scrolls through the list in equal steps and measures the time until each is painted.
double scrollThrough(QTableWidget& table)
{
    constexpr int frames = 200;
    QScrollBar* const bar = table.verticalScrollBar();
    return bench::secondsToPainted(table.viewport(), [bar] {
        for (int frame = 0; frame < frames; ++frame) {
            bar->setValue(static_cast<int>(static_cast<long long>(bar->maximum()) * frame / frames));
            bench::settle();
        }
    });
}

void measureScrolling(ListRun& run, int rounds)
{
    fill(run.field(), oneMillion);
    run.leave();
    run.selectList();
    run.selectBare(oneMillion);
    run.matchViews();
    // Nine tenths of the frame rate is the same as ten ninths of the time.
    bench::compare(
        "scrolling through 1,000,000 rows", 1 / 0.9, rounds, [&run] { return scrollThrough(*run.table); },
        [&run] { return scrollThrough(run.bare); });
}

/// The result of an edited cell: field, sensor, repaint. The line edit in the cell isn't measured.
double editFirstCell(ListRun& run, const QString& text)
{
    return bench::secondsToPainted(run.table->viewport(), [&run, &text] {
        QLineEdit line;
        line.setText(text);
        line.setModified(true);
        run.table->itemDelegate()->setModelData(&line, run.table->model(), run.table->model()->index(0, 0));
    });
}

void measureEdit(ListRun& run, int rounds)
{
    const auto editIn = [&run](int rows) {
        return [&run, rows] {
            fill(run.field(), rows);
            run.selectList();
            bench::settle();
            return editFirstCell(run, QStringLiteral("123"));
        };
    };
    bench::compare("one cell edit: 1,000,000 rows against 10", 2, rounds, editIn(oneMillion), editIn(10));
}

void measureRowChanges(ListRun& run, int rounds)
{
    fill(run.field(), oneMillion);
    run.leave();
    run.selectList();
    run.selectBare(oneMillion);
    std::vector<int> values(oneMillion, 1);
    run.matchViews();
    constexpr int row = oneMillion / 2;
    const auto makeCurrent = [](QTableWidget& table) {
        table.setCurrentCell(row, 0);
        bench::settle();
    };
    bench::compare(
        "adding a row to 1,000,000", 1.2, rounds,
        [&] {
            makeCurrent(*run.table);
            return bench::secondsToPainted(run.table->viewport(), [&run] { run.table->addRow(); });
        },
        [&] {
            makeCurrent(run.bare);
            return bench::secondsToPainted(run.bare.viewport(), [&] {
                values.insert(values.begin() + row, 0);
                run.bare.insertRow(row + 1);
            });
        });
    bench::compare(
        "deleting a row of 1,000,000", 1.2, rounds,
        [&] {
            makeCurrent(*run.table);
            return bench::secondsToPainted(run.table->viewport(), [&run] { run.table->deleteRow(); });
        },
        [&] {
            makeCurrent(run.bare);
            return bench::secondsToPainted(run.bare.viewport(), [&] {
                values.erase(values.begin() + row);
                run.bare.removeRow(row);
            });
        });
}

void measureMatrices(ListRun& run, int rounds)
{
    NxMFMatrix& field = run.host.node->mfMatrix;
    constexpr int height = 360; // which ten rows fill, so as many are in sight
    run.host.window.resize(run.host.window.width(), height);
    const auto paintOf = [&run, &field](int rows) {
        return [&run, &field, rows] {
            field.setValues(std::vector<VbMatrix>(static_cast<std::size_t>(rows)));
            run.host.services.selectField(&field);
            bench::settle();
            QWidget* const cells = run.host.dock->findChild<DvMFieldTable*>()->viewport();
            return bench::secondsToPainted(cells, [cells] { cells->update(); });
        };
    };
    bench::compare("painting a list of matrices: 100,000 rows against 10", 1.5, rounds, paintOf(100'000), paintOf(10));
}

void measureUndo(ListRun& run, int rounds)
{
    constexpr int deleted = 100'000;
    fill(run.field(), oneMillion);
    run.leave();
    NxMFInt32 sample(nullptr, "sample");
    fill(sample, deleted);
    bench::compare(
        "undo of deleting 100,000 rows", 2, rounds,
        [&run] {
            OrvMFDeleteRowsCommand command(&run.field(), 1000, deleted);
            command.execute();
            return bench::seconds([&command] { command.undo(); });
        },
        [&sample] {
            return bench::seconds([&sample] {
                VbString text;
                for (int row = 0; row < sample.getNum(); ++row)
                    sample.get1(row, text);
            });
        });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    measureMemory(oneMillion);
    measureMemory(tenMillions);
    ListRun run;
    measureSelection(run, oneMillion, 21);
    measureSelection(run, tenMillions, 5);
    measureScrolling(run, 9);
    measureEdit(run, 21);
    measureRowChanges(run, 21);
    measureUndo(run, 21);
    measureMatrices(run, 21);
    return 0;
}
