// Searching a scene of 1,000,000 named nodes, beside a bare loop over the same names, and the window meanwhile.

#include "Figure.h"
#include "NamedScene.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/app/find/FindEdit.h"
#include "orvane/app/find/FindLine.h"
#include "orvane/app/find/TreeFinder.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/window/MainWindow.h"

#include "meridane/query/SceneSearch.h"
#include "meridane/scene/journal/Journal.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int rounds = 7;

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool hasInOrder(std::string_view name, std::string_view letters)
{
    std::size_t next = 0;
    for (const char letter : name) {
        if (lower(letter) == letters[next] && ++next == letters.size())
            return true;
    }
    return false;
}

std::size_t countBarely(const NxNode& group, std::string_view letters)
{
    std::size_t count = 0;
    for (const NxNode* const child : group.getChildren())
        count += (hasInOrder(child->getName().view(), letters) ? 1U : 0U) + countBarely(*child, letters);
    return count;
}

/// The processor time of a part, which other programs change little.
double secondsOf(const std::function<void()>& part)
{
    const double begin = bench::processorTime();
    part();
    return bench::processorTime() - begin;
}

void checkEqual(std::size_t left, std::size_t right)
{
    if (left != right)
        std::abort();
}

/// A search in slices of 4 ms, as the tool makes it.
std::size_t search(meridane::SceneSearch& search, const char* word)
{
    search.begin(std::get<meridane::Query>(meridane::Query::parse(word)));
    while (search.step(std::chrono::milliseconds(4))) { }
    return search.hits().size();
}

void measureSearch(meridane::Journal& journal, const char* word)
{
    const std::string about = std::string("find in 1,000,000 nodes, \"") + word + "\"";
    const std::size_t expected = countBarely(journal.scene(), word);
    const auto baseline = [&] { return secondsOf([&] { checkEqual(countBarely(journal.scene(), word), expected); }); };
    const auto first = [&] {
        return secondsOf([&] {
            meridane::SceneSearch whole(journal);
            checkEqual(search(whole, word), expected);
        });
    };
    bench::compare(about + ", with reading the names", 3, rounds, first, baseline);
    meridane::SceneSearch known(journal);
    search(known, word);
    const auto next = [&] { return secondsOf([&] { checkEqual(search(known, word), expected); }); };
    bench::compare(about + ", the next search", 3, rounds, next, baseline);
}

void type(QWidget* line, QChar letter)
{
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
    QApplication::sendEvent(line, &press);
}

/// Types a text; after the last key the time until there is a hit, until all are counted, and the longest turn of the
/// event loop, in processor time.
void measureTyping(MainWindow& window, const char* about, const QString& text)
{
    TreeFinder& finder = *window.findChild<TreeFinder*>();
    FindEdit* const edit = finder.line()->edit();
    edit->setFocus();
    std::vector<double> firsts;
    std::vector<double> alls;
    double longest = 0;
    for (int round = 0; round < rounds; ++round) {
        edit->clear();
        bench::settle();
        for (const QChar letter : text.chopped(1)) {
            type(edit, letter);
            QApplication::processEvents();
        }
        const double begin = bench::processorTime();
        double first = 0;
        type(edit, text.back());
        double turn = begin;
        while (!finder.finder().isComplete() || first == 0) {
            QApplication::processEvents();
            const double now = bench::processorTime();
            longest = std::max(longest, now - turn);
            turn = now;
            if (first == 0 && finder.finder().count() > 0)
                first = now - begin;
        }
        firsts.push_back(first);
        alls.push_back(bench::processorTime() - begin);
        for (int i = 0; i < 10; ++i) { // what is still to be laid out and painted
            turn = bench::processorTime();
            QApplication::processEvents();
            longest = std::max(longest, bench::processorTime() - turn);
        }
    }
    const std::string name = std::string("find in 1,000,000 nodes, ") + about;
    bench::report({name + ": first hit", "ms", 1000 * bench::median(firsts), 0, 50});
    bench::report({name + ": all hits", "ms", 1000 * bench::median(alls), 0, 300});
    bench::report({name + ": longest wait", "ms", 1000 * longest, 0, 8});
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ORVANE_VIEW", "0");
    const QApplication application(argc, argv);
    const NxRef<NxGroup> scene = bench::makeNamedScene();
    {
        meridane::Journal journal(*scene);
        while (journal.run(std::chrono::hours(1))) { }
        measureSearch(journal, "wheel");
        measureSearch(journal, "999999");
        measureSearch(journal, "nothing");
    }
    Session session(AppSettings::Mode::None);
    MainWindow window(session);
    window.show();
    session.document().open(scene, {});
    bench::settle();
    measureTyping(window, "the last node", QStringLiteral("part 999999"));
    measureTyping(window, "all nodes", QStringLiteral("wheel"));
    measureTyping(window, "by a regular expression", QStringLiteral("/(l|w).*9{5}$/"));
    return EXIT_SUCCESS;
}
