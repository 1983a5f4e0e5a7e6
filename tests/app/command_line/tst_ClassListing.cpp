#include "orvane/app/command_line/ClassListing.h"

#include "meridane/scene/fields/single/NxSFBitMask.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFString.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTextStream>

namespace {

const NxEnumeration& sides()
{
    static const NxEnumeration names{{"LEFT", 1}, {"RIGHT", 2}};
    return names;
}

/// A class as a plug-in would write one.
class ValveNode : public NxNode {
    NX_NODE(ValveNode)

public:
    NxSFFloat opening{this,
        {"opening", "How far the valve is open.", NxUnit::Percent, meridane::range(0, 100), meridane::softRange(5, 95),
            meridane::step(5)},
        20};
    NxSFFloat length{this, {"length", "How long the pipe is.", NxUnit::Metres, meridane::above(0)}, 2};
    NxSFFloat angle{this, {"angle", "How far it is turned.", NxUnit::Radians, meridane::between(-3, 3)}};
    NxSFBitMask ends{this, {"ends", "Where the pipe is open."}, sides(), 1};
    NxSFString maker{this, "maker"};
    NxSFString drawing{this, {"drawing", "The plan.", meridane::filePath}};
};

NX_NODE_SOURCE(ValveNode, NxNode, "ValveNode", "A valve in a pipe.")

QString printed(const QStringList& names)
{
    const auto listing = ClassListing::of(names);
    QString text;
    QTextStream output(&text);
    if (listing)
        listing.value().print(output);
    return text;
}

QJsonObject json(const QStringList& names)
{
    const auto listing = ClassListing::of(names);
    QString text;
    QTextStream output(&text);
    if (listing)
        listing.value().printJson(output);
    output.flush();
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

QJsonObject fieldOf(const QJsonObject& listing, int index)
{
    return listing.value(u"classes").toArray().first().toObject().value(u"fields").toArray().at(index).toObject();
}

} // namespace

class TestClassListing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aClassIsAParagraphWithALineForEachField()
    {
        QCOMPARE(printed({QStringLiteral("ValveNode")}),
            QStringLiteral(
                "ValveNode (Node)\n"
                "A valve in a pipe.\n"
                "  opening  SFFloat    20    per cent  0 to 100, useful 5 to 95  How far the valve is open.\n"
                "  length   SFFloat    2     metres    above 0                   How long the pipe is.\n"
                "  angle    SFFloat    0     radians   above -3 and below 3      How far it is turned.\n"
                "  ends     SFBitMask  LEFT            LEFT | RIGHT              Where the pipe is open.\n"
                "  maker    SFString   \"\"\n"
                "  drawing  SFString   \"\"                                        The plan.\n"));
    }

    void columnsThatNothingFillsAreLeftOut()
    {
        QCOMPARE(printed({QStringLiteral("Group")}),
            QStringLiteral("Group (Node)\nA node that holds other nodes, in order.\n"));
        QVERIFY(printed({QStringLiteral("MatrixTransform")}).contains(QStringLiteral("  The matrix from")));
    }

    void classesComeInTheOrderAskedFor()
    {
        const QString text = printed({QStringLiteral("Transform"), QStringLiteral("Material")});
        QVERIFY(text.startsWith(QStringLiteral("Transform (Group, Node)\n")));
        QVERIFY(text.contains(QStringLiteral("\n\nMaterial (Node)\n")));
    }

    void withoutANameAllClassesAreListedByName()
    {
        const QString text = u'\n' + printed({});
        qsizetype before = -1;
        for (const char* const name : {"Complexity", "FieldGallery", "Material", "Switch", "Transform", "ValveNode"}) {
            const qsizetype place = text.indexOf(u'\n' + QLatin1String(name) + QStringLiteral(" ("));
            QVERIFY2(place > before, name);
            before = place;
        }
        QVERIFY(!text.contains(QStringLiteral("\nLight ("))); // there are no nodes of it
    }

    void jsonHasTheFactsAsNumbers()
    {
        const QJsonObject listing = json({QStringLiteral("ValveNode")});
        QCOMPARE(listing.value(u"version").toInt(), 1);
        const QJsonObject opening = fieldOf(listing, 0);
        QCOMPARE(opening.value(u"name").toString(), QStringLiteral("opening"));
        QCOMPARE(opening.value(u"declaredBy").toString(), QStringLiteral("ValveNode"));
        QCOMPARE(opening.value(u"default").toString(), QStringLiteral("20"));
        QCOMPARE(opening.value(u"hardRange").toArray(), QJsonArray({0, 100}));
        QCOMPARE(opening.value(u"softRange").toArray(), QJsonArray({5, 95}));
        QCOMPARE(opening.value(u"step").toDouble(), 5.0);
        QVERIFY(!opening.value(u"isFile").toBool());
        QVERIFY(fieldOf(listing, 5).value(u"isFile").toBool());
    }

    void jsonHasNullWhereThereIsNoLimit()
    {
        const QJsonObject length = fieldOf(json({QStringLiteral("ValveNode")}), 1);
        QCOMPARE(length.value(u"hardRange").toArray(), QJsonArray({0, QJsonValue()}));
        QCOMPARE(length.value(u"excludesLimits").toArray(), QJsonArray({true, false}));
        QVERIFY(length.value(u"step").isNull());
    }

    void jsonNamesTheClassThatDeclaresAField()
    {
        const QJsonObject listing = json({QStringLiteral("SpotLight")});
        QCOMPARE(fieldOf(listing, 0).value(u"declaredBy").toString(), QStringLiteral("Light"));
        const QJsonObject spot = listing.value(u"classes").toArray().first().toObject();
        QCOMPARE(spot.value(u"bases").toArray(), QJsonArray({QStringLiteral("Light"), QStringLiteral("Node")}));
    }

    void anUnknownClassIsRefusedWithNearNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        const QString begin = QStringLiteral("There is no node class '%1'");
        const auto row = [&begin](const char* name, const char* rest) {
            QTest::newRow(name) << QString::fromUtf8(name) << begin.arg(QString::fromUtf8(name)) + QLatin1String(rest);
        };
        row("material", "; did you mean Material?");
        row("Materail", "; did you mean Material?");
        row("Tran", "; did you mean Transform or MatrixTransform?");
        row("Orthographic", "; did you mean OrthographicCamera?");
        row("Light", "; did you mean SpotLight or PointLight or DirectionalLight?");
        row("Zebra", "; --describe alone lists all.");
        row("x", "; --describe alone lists all.");
    }

    void anUnknownClassIsRefusedWithNearNames()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, message);
        QCOMPARE(ClassListing::of({QStringLiteral("Group"), name}).error(), message);
    }
};

QTEST_APPLESS_MAIN(TestClassListing)
#include "tst_ClassListing.moc"
