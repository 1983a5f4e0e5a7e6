#include "orvane/app/base/NearNames.h"

#include <QTest>

class TestNearNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesThatMayBeMeantAreFound_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("near");
        const QString radius = QStringLiteral("radius");
        const QString radiance = QStringLiteral("radiance");
        const QString color = QStringLiteral("diffuseColor");
        QTest::newRow("other case") << QStringLiteral("RADIUS") << QStringList{radius};
        QTest::newRow("missing letter") << QStringLiteral("radus") << QStringList{radius};
        QTest::newRow("two letters exchanged") << QStringLiteral("raduis") << QStringList{radius};
        QTest::newRow("part") << QStringLiteral("radi") << QStringList({radius, radiance});
        QTest::newRow("three wrong letters in a long name") << QStringLiteral("difusecolour") << QStringList{color};
        QTest::newRow("something else") << QStringLiteral("weight") << QStringList();
        QTest::newRow("empty") << QString() << QStringList();
        QTest::newRow("very long") << QString(100000, u'r') << QStringList();
    }

    void namesThatMayBeMeantAreFound()
    {
        QFETCH(const QString, typed);
        QFETCH(const QStringList, near);
        QCOMPARE(orvane::nearNames(
                     typed, {QStringLiteral("radiance"), QStringLiteral("radius"), QStringLiteral("diffuseColor")}),
            near);
    }

    void atMostThreeAreGiven()
    {
        QStringList names;
        for (int i = 0; i < 10; ++i)
            names.append(QStringLiteral("light%1").arg(i));
        QCOMPARE(orvane::nearNames(QStringLiteral("light"), names).size(), 3);
    }
};

QTEST_APPLESS_MAIN(TestNearNames)
#include "tst_NearNames.moc"
