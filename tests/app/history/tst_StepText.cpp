#include "app/history/HistoryScene.h"

#include "orvane/app/history/StepText.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/journal/Journal.h"

#include <QTest>

#include <chrono>
#include <map>
#include <random>

namespace {

/// A scene whose older values can be read.
struct OpenScene : HistoryScene {
    OpenScene()
        : index(services().steps())
    {
        QObject::connect(&services().steps(), &OrvStepList::changed, &context,
            [this](int dropped, int first) { index.follow(dropped, first); });
    }

    [[nodiscard]] PastState::History history()
    {
        while (index.run(std::chrono::hours(1))) { }
        return {services().steps(), index, *services().document().journal()};
    }
    /// The values before a step and after it.
    [[nodiscard]] QStringList text(int step)
    {
        const StepText texts = orvane::stepText(history(), step);
        return {texts.before, texts.after};
    }

    StepIndex index;
    QObject context; // of the connection
};

QStringList pair(const char* before, const char* after)
{
    return {QString::fromUtf8(before), QString::fromUtf8(after)};
}

std::string textOf(const NxField& field)
{
    VbString text;
    field.get(text);
    return std::string(text.view());
}

} // namespace

/// The older values of the history.
class TestStepText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aValueIsShownBeforeAndAfterItsStep()
    {
        OpenScene open;
        open.set(open.hand().sfInt32, "1");
        open.set(open.hand().sfString, "\"x\"");
        open.set(open.hand().sfInt32, "2");
        const QList expected{pair("0", "1"), pair("\"\"", "\"x\""), pair("1", "2")};
        // Wherever the history is, and with an open step on top.
        for (const int position : {3, 0, 2, 1, 3}) {
            open.goTo(position);
            for (int step = 0; step < 3; ++step)
                QCOMPARE(open.text(step), expected.at(step));
        }
        open.hand().sfInt32.setValue(9);
        QCOMPARE(open.text(2), expected.at(2));
    }

    void namesAndFlagsAreShown()
    {
        OpenScene open;
        open.hand().setName("fist");
        open.finish();
        open.hand().sfInt32.setIgnored(1);
        open.finish();
        open.hand().setName("palm\n<b>");
        open.finish();
        QCOMPARE(open.text(0), pair("hand", "fist"));
        QCOMPARE(open.text(1), pair("used", "ignored"));
        QCOMPARE(open.text(2), pair("fist", "palm␊<b>"));
        open.goTo(0);
        QCOMPARE(open.text(0), pair("hand", "fist"));
        QCOMPARE(open.text(1), pair("used", "ignored"));
    }

    void rowsOfAListAreShownWithTheirNumber()
    {
        OpenScene open;
        NxMFInt32& list = open.hand().mfInt32;
        open.set(list, "[10, 11, 12, 13]");
        list.set1Value(2, 7);
        open.finish();
        list.insertSpace(1, 2);
        open.finish();
        list.deleteValues(3, 2);
        open.finish();
        list.set1Value(0, 5);
        open.finish();
        const QList expected{pair("[]", "[10, 11, 12, 13]"), pair("2: 12", "2: 7"), pair("", "1: 0, 0"),
            pair("3: 11, 7", ""), pair("0: 10", "0: 5")};
        for (const int position : {5, 0, 3, 1, 4}) {
            open.goTo(position);
            for (int step = 0; step < 5; ++step)
                QCOMPARE(open.text(step), expected.at(step));
        }
    }

    void longValuesAreShort()
    {
        OpenScene open;
        open.hand().mfInt32.setValues(std::vector<std::int32_t>(100'000, 5));
        open.finish();
        open.hand().mfInt32.deleteValues(10, 50'000);
        open.finish();
        QVERIFY(open.text(0).at(1).startsWith(QStringLiteral("100000 values, from 0: 5, 5")));
        QVERIFY(open.text(1).at(0).startsWith(QStringLiteral("10: 5, 5")));
        for (const QString& text : open.text(0) + open.text(1))
            QVERIFY(text.size() < 400);
    }

    void severalPlacesAreCounted()
    {
        OpenScene open;
        open.hand().sfInt32.setValue(1);
        open.hand().sfFloat.setValue(1);
        open.arm().setName("leg");
        open.finish();
        QCOMPARE(open.text(0), pair("", "3 changes"));
        open.arm().removeChild(0);
        open.finish();
        QCOMPARE(open.text(1), pair("", ""));
    }

    void theIndexForgetsStepsThatAreGone()
    {
        OpenScene open;
        for (const char* value : {"1", "2", "3", "4"})
            open.set(open.hand().sfInt32, value);
        open.goTo(1);
        open.set(open.hand().sfFloat, "8");
        open.set(open.hand().sfInt32, "6");
        QCOMPARE(open.text(0), pair("0", "1"));
        QCOMPARE(open.text(2), pair("1", "6"));
        open.services().setHistoryLimit(1);
        QCOMPARE(open.services().steps().count(), 1);
        QCOMPARE(open.text(0), pair("1", "6"));
        open.services().setHistoryLimit(std::size_t{1} << 30);
        for (int i = 0; i < 3000; ++i) { // enough for the index to be made again
            open.goTo(0);
            open.hand().sfInt32.setValue(i + 10);
            open.finish();
        }
        QCOMPARE(open.text(0), pair("1", "3009"));
    }

    void everyStateOfEveryPlaceCanBeReached_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 5; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    // Against the texts that the fields had.
    void everyStateOfEveryPlaceCanBeReached()
    {
        QFETCH(const unsigned, seed);
        std::mt19937 random(seed);
        const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
        OpenScene open;
        NxMFInt32& list = open.hand().mfInt32;
        NxSFInt32& number = open.hand().sfInt32;
        std::vector<std::string> lists{textOf(list)};
        std::vector<std::string> numbers{textOf(number)};
        for (int i = 0; i < 150; ++i) {
            for (int writes = 1 + below(3); writes > 0; --writes) {
                switch (below(6)) {
                case 0:
                    list.setValues(std::vector<std::int32_t>(static_cast<std::size_t>(below(6)), i));
                    break;
                case 1:
                    list.insertSpace(below(list.getNum() + 1), below(3));
                    break;
                case 2:
                    list.deleteValues(below(list.getNum() + 1), below(3));
                    break;
                case 3:
                    number.setValue(below(5));
                    break;
                default:
                    list.set1Value(below(list.getNum() + 1), below(1000));
                }
            }
            const int before = open.services().steps().position();
            open.finish();
            if (open.services().steps().position() == before)
                continue;
            lists.push_back(textOf(list));
            numbers.push_back(textOf(number));
            if (below(10) == 0) {
                const int back = below(5);
                open.goTo(std::max(0, before - back));
                lists.resize(static_cast<std::size_t>(open.services().steps().position()) + 1);
                numbers.resize(lists.size());
            }
        }
        open.set(number, "77");
        lists.push_back(textOf(list));
        numbers.push_back(textOf(number));
        const int count = open.services().steps().count();
        QCOMPARE(static_cast<int>(lists.size()), count + 1);
        for (int present : {count, 0, count / 2, count / 3}) {
            open.goTo(present);
            for (int position = 0; position <= count; ++position) {
                const auto place = static_cast<std::size_t>(position);
                for (const auto& [field, texts] :
                    std::map<NxField*, std::vector<std::string>*>{{&list, &lists}, {&number, &numbers}}) {
                    const PastState past(
                        open.history(), {meridane::ChangeRecord::Kind::Value, field}, position, 1'000'000);
                    QVERIFY(past.isReached());
                    QCOMPARE(textOf(*field), texts->at(place));
                }
            }
            QCOMPARE(textOf(list), lists.at(static_cast<std::size_t>(present)));
        }
    }
};

QTEST_MAIN(TestStepText)
#include "tst_StepText.moc"
