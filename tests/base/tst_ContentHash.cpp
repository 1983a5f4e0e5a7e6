#include "meridane/base/ContentHash.h"

#include <QTest>

#include <set>
#include <vector>

using meridane::ContentHash;
using meridane::ContentHasher;

class TestContentHash : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isThePublishedHash()
    {
        // Of no bytes at all.
        QCOMPARE(ContentHash::of({}).toText(), std::string("99aa06d3014798d86001c324468d497f"));
        QCOMPARE((ContentHash{1, 0xab}).toText(), std::string("000000000000000100000000000000ab"));
    }

    void partsHaveTheHashOfTheWhole()
    {
        std::string content;
        for (int i = 0; i < 5000; ++i)
            content += static_cast<char>(i * 7);
        for (const std::size_t part : {1U, 3U, 64U, 1000U, 4096U, 5000U}) {
            ContentHasher hasher;
            for (std::size_t at = 0; at < content.size(); at += part)
                hasher.add(std::string_view(content).substr(at, part));
            QVERIFY(hasher.hash() == ContentHash::of(content));
        }
        QVERIFY(ContentHasher().hash() == ContentHash::of({}));
    }

    void differentContentsHaveDifferentHashes()
    {
        std::set<std::string> hashes;
        std::set<std::uint64_t> shortHashes;
        std::vector<std::byte> bytes;
        const auto add = [&] {
            const std::string_view content(reinterpret_cast<const char*>(bytes.data()), bytes.size());
            QVERIFY(hashes.insert(ContentHash::of(content).toText()).second);
            QVERIFY(shortHashes.insert(meridane::shortHashOf(bytes)).second);
        };
        // Zeros of all lengths, and each with one bit set.
        for (std::size_t length = 0; length < 100; ++length) {
            bytes.assign(length, std::byte{0});
            add();
            for (std::size_t bit = 0; bit < 8 * length; ++bit) {
                bytes[bit / 8] = std::byte{1} << (bit % 8);
                add();
                bytes[bit / 8] = std::byte{0};
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestContentHash)
#include "tst_ContentHash.moc"
