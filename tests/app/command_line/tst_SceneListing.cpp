#include "app/AppScenes.h"

#include "orvane/app/command_line/SceneListing.h"

#include <QTest>
#include <QTextStream>

namespace {

QStringList linesOf(NxGroup* scene)
{
    QString text;
    QTextStream output(&text);
    SceneListing(scene, output).print();
    return text.split(u'\n', Qt::SkipEmptyParts);
}

// The lines of the nodes alone.
QStringList nodesOf(NxGroup* scene)
{
    return linesOf(scene).filter(QStringLiteral("\tGroup")) + linesOf(scene).filter(QStringLiteral("\tMaterial"));
}

// Takes the given number of bytes, and then none.
class FullDevice : public QIODevice {
public:
    explicit FullDevice(qint64 room)
        : m_room(room)
    {
        open(QIODevice::WriteOnly);
    }
    [[nodiscard]] qint64 tries() const { return m_tries; }

protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char* /*data*/, qint64 size) override
    {
        ++m_tries;
        m_room -= size;
        return m_room >= 0 ? size : -1;
    }

private:
    qint64 m_room;
    qint64 m_tries = 0;
};

} // namespace

class TestSceneListing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thereIsALineForEachNodeAndField()
    {
        const NxRef<NxGroup> scene = AppScenes::read("#mrd 1.0\n"
                                                     "Group \"rig\" {\n"
                                                     "  Material \"paint\" { transparency = 0.25 }\n"
                                                     "  Complexity { value = 0.5 }\n"
                                                     "}\n");
        const QStringList lines = linesOf(scene.get());
        QCOMPARE(lines.first(), QStringLiteral("/rig\tGroup"));
        QVERIFY(lines.contains(QStringLiteral("/rig/paint\tMaterial")));
        QVERIFY(lines.contains(QStringLiteral("/rig/paint.transparency\tSFFloat\t0.25")));
        QVERIFY(lines.contains(QStringLiteral("/rig/Complexity[0].value\tSFFloat\t0.5")));
    }

    void eachOfManySiblingsHasItsPath()
    {
        constexpr int count = 1000;
        QByteArray text("#mrd 1.0\nGroup \"many\" {\n");
        for (int i = 0; i < count; ++i)
            text += "Group \"part " + QByteArray::number(i) + "\" { }\n";
        const NxRef<NxGroup> scene = AppScenes::read((text + "}\n").constData());
        const QStringList lines = linesOf(scene.get());
        QCOMPARE(lines.size(), 1 + count);
        for (int i = 0; i < count; ++i)
            QCOMPARE(lines[1 + i], QStringLiteral("/many/part %1\tGroup").arg(i));
    }

    void aNodeInSeveralPlacesIsListedOnce()
    {
        const NxRef<NxGroup> scene = AppScenes::read("#mrd 1.0\n"
                                                     "Group \"a\" { Material \"paint\" {} Group \"inner\" {} }\n"
                                                     "Group { use \"a\"; use \"paint\"; Group \"own\" {} }\n"
                                                     "Group \"c\" { use \"a\" }\n");
        QCOMPARE(nodesOf(scene.get()),
            QStringList({QStringLiteral("/a\tGroup"), QStringLiteral("/a/inner\tGroup"),
                QStringLiteral("/Group[1]\tGroup"), QStringLiteral("/Group[1]/a\tGroup\tsame as /a"),
                QStringLiteral("/Group[1]/own\tGroup"), QStringLiteral("/c\tGroup"),
                QStringLiteral("/c/a\tGroup\tsame as /a"), QStringLiteral("/a/paint\tMaterial"),
                QStringLiteral("/Group[1]/paint\tMaterial\tsame as /a/paint")}));
        // Their fields are there once as well.
        QCOMPARE(linesOf(scene.get()).filter(QStringLiteral("paint.transparency")).size(), 1);
    }

    void theLengthFollowsFromTheNumberOfNodes()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        NxRef<NxGroup> group(new NxGroup);
        constexpr int depth = 60;
        for (int i = 0; i < depth; ++i) {
            NxRef<NxGroup> above(new NxGroup);
            above->addChild(group.get());
            above->addChild(group.get());
            group = above;
        }
        scene->addChild(group.get());
        group = nullptr;
        const QStringList nodes = nodesOf(scene.get());
        QCOMPARE(nodes.size(), 2 * depth + 1);
        QCOMPARE(nodes.filter(QStringLiteral("same as")).size(), depth);
    }

    void manySiblingsHaveTheirPaths()
    {
        const NxRef<NxGroup> scene = AppScenes::wide(100000);
        const QStringList nodes = linesOf(scene.get());
        QCOMPARE(nodes.last(), QStringLiteral("/Group[0]/Group[99999]\tGroup"));
    }

    void itEndsWhereNothingCanBeWritten()
    {
        const NxRef<NxGroup> scene = AppScenes::wide(100000);
        FullDevice device(100000);
        QTextStream output(&device);
        SceneListing(scene.get(), output).print();
        QCOMPARE(output.status(), QTextStream::WriteFailed);
        QVERIFY2(device.tries() < 20, qPrintable(QString::number(device.tries())));
    }
};

QTEST_GUILESS_MAIN(TestSceneListing)
#include "tst_SceneListing.moc"
