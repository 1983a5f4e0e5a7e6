#include "meridane/scene/compare/detail/RisingRun.h"
#include "meridane/scene/compare/detail/ShortestEdit.h"

#include <QTest>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

using meridane::RisingRun;
using meridane::ShortestEdit;

namespace {

/// The length of the longest common subsequence, by the textbook table.
std::size_t commonLength(const std::string& left, const std::string& right)
{
    std::vector<std::vector<std::size_t>> lengths(left.size() + 1, std::vector<std::size_t>(right.size() + 1));
    for (std::size_t i = 0; i < left.size(); ++i) {
        for (std::size_t j = 0; j < right.size(); ++j)
            lengths[i + 1][j + 1]
                = left[i] == right[j] ? lengths[i][j] + 1 : std::max(lengths[i][j + 1], lengths[i + 1][j]);
    }
    return lengths.back().back();
}

/// The length of the longest rising subsequence, by comparing each number with all before it.
std::size_t risingLength(const std::vector<std::uint32_t>& numbers)
{
    std::vector<std::size_t> lengths;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        lengths.push_back(1);
        for (std::size_t j = 0; j < i; ++j) {
            if (numbers[j] < numbers[i])
                lengths[i] = std::max(lengths[i], lengths[j] + 1);
        }
    }
    return lengths.empty() ? 0 : *std::max_element(lengths.begin(), lengths.end());
}

} // namespace

// The searches of sequences that the comparison of children is based on, against simple ones.
class TestShortestEdit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commonElementsAreTheMost()
    {
        std::mt19937 random(1);
        for (int round = 0; round < 2000; ++round) {
            std::string left(random() % 30, 'a');
            std::string right(random() % 30, 'a');
            for (std::string* const text : {&left, &right})
                std::for_each(text->begin(), text->end(), [&](char& letter) { letter = "abcd"[random() % 4]; });
            ShortestEdit edit;
            edit.start(static_cast<std::uint32_t>(left.size()), static_cast<std::uint32_t>(right.size()),
                [&](std::uint32_t i, std::uint32_t j) { return left.at(i) == right.at(j); });
            while (edit.step(1)) { }
            const auto pairs = edit.pairs();
            QCOMPARE(pairs.size(), commonLength(left, right));
            for (std::size_t i = 0; i < pairs.size(); ++i) {
                QCOMPARE(left.at(pairs[i].first), right.at(pairs[i].second));
                QVERIFY(i == 0 || (pairs[i - 1].first < pairs[i].first && pairs[i - 1].second < pairs[i].second));
            }
        }
    }

    void itGivesUpWhereTooMuchDiffers()
    {
        const auto find = [](std::uint32_t inserted) {
            ShortestEdit edit;
            edit.start(10, 10 + inserted, [](std::uint32_t i, std::uint32_t j) { return i == j; });
            while (edit.step(1000)) { }
            return edit.pairs().size();
        };
        QCOMPARE(find(ShortestEdit::mostEdits), std::size_t{10});
        QCOMPARE(find(ShortestEdit::mostEdits + 1), std::size_t{0});
    }

    void risingNumbersAreTheMost()
    {
        std::mt19937 random(2);
        for (int round = 0; round < 2000; ++round) {
            std::vector<std::uint32_t> numbers(random() % 20);
            for (std::uint32_t i = 0; i < numbers.size(); ++i)
                numbers[i] = i;
            std::shuffle(numbers.begin(), numbers.end(), random);
            RisingRun run;
            for (const std::uint32_t number : numbers)
                run.add(number);
            const std::vector<std::uint32_t> places = run.places();
            QCOMPARE(places.size(), risingLength(numbers));
            for (std::size_t i = 1; i < places.size(); ++i)
                QVERIFY(places[i - 1] < places[i] && numbers[places[i - 1]] < numbers[places[i]]);
        }
    }
};

QTEST_GUILESS_MAIN(TestShortestEdit)
#include "tst_ShortestEdit.moc"
