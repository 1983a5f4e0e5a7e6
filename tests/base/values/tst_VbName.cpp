#include "meridane/base/values/VbName.h"

#include <QTest>

#include <string>
#include <thread>
#include <vector>

class TestVbName : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalTextsAreOnePointer()
    {
        const std::string first = "someName";
        const std::string second = "someName";
        QVERIFY(first.c_str() != second.c_str());
        QVERIFY(VbNameChunk::insert(first.c_str()) == VbNameChunk::insert(second.c_str()));
        QVERIFY(VbName(first.c_str()) == VbName(second.c_str()));
    }

    void differentTextsDiffer()
    {
        QVERIFY(VbName("a") != VbName("A"));
        QVERIFY(VbName("a") != VbName("ab"));
        QVERIFY(VbName("a") != VbName());
    }

    void theTextIsACopy()
    {
        std::string text = "volatile";
        const VbName name(text.c_str());
        text[0] = 'V';
        QCOMPARE(name.getString(), "volatile");
    }

    void theEmptyName()
    {
        const char* const none = nullptr;
        QVERIFY(VbName().isEmpty());
        QVERIFY(VbName() == VbName(""));
        QVERIFY(VbName() == VbName(none));
        QVERIFY(!VbName(" ").isEmpty());
        QCOMPARE(VbName().getString(), "");
    }

    void aNameIsAsSmallAsAPointer() { QCOMPARE(sizeof(VbName), sizeof(void*)); }

    void textsStayWhereTheyAreWhileOthersCome()
    {
        const char* const text = VbNameChunk::insert("anchor");
        for (int i = 0; i < 100'000; ++i)
            VbNameChunk::insert(("filler" + std::to_string(i)).c_str());
        QVERIFY(VbNameChunk::insert("anchor") == text);
        QCOMPARE(text, "anchor");
    }

    void eightThreadsAgreeOnThePointers()
    {
        constexpr std::size_t count = 1000;
        std::vector<std::vector<const char*>> found(8, std::vector<const char*>(count));
        {
            std::vector<std::jthread> threads;
            for (std::vector<const char*>& own : found) {
                threads.emplace_back([&own] {
                    for (std::size_t i = 0; i < count; ++i)
                        own[i] = VbNameChunk::insert(("shared" + std::to_string(i)).c_str());
                });
            }
        }
        for (const std::vector<const char*>& own : found)
            QVERIFY(own == found.front());
    }
};

QTEST_APPLESS_MAIN(TestVbName)
#include "tst_VbName.moc"
