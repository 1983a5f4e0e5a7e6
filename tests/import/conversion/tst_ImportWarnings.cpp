#include "orvane/import/conversion/ImportWarnings.h"

#include <QTest>

using orvane::ImportWarnings;

class TestImportWarnings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachKindIsOneWarningThatNamesItsParts()
    {
        ImportWarnings warnings;
        QVERIFY(warnings.texts().empty());
        warnings.add("left out lights", "lamp");
        warnings.add("left out cameras", "eye");
        warnings.add("left out lights", "sun");
        warnings.add("left out lights", "lamp");
        warnings.add("animations are left out");
        warnings.add("animations are left out");
        QCOMPARE(warnings.texts(),
            (std::vector<std::string>{
                "left out lights: \"lamp\", \"sun\"", "left out cameras: \"eye\"", "animations are left out"}));
    }

    void manyPartsAreCounted()
    {
        ImportWarnings warnings;
        for (int index = 0; index < 11; ++index)
            warnings.add("left out", std::string(1, static_cast<char>('a' + index)));
        warnings.add("left out", "");
        warnings.add("left out", "");
        QCOMPARE(warnings.texts().front(),
            std::string("left out: \"a\", \"b\", \"c\", \"d\", \"e\", \"f\", \"g\", \"h\", 2 without a name, 3 more"));
    }
};

QTEST_GUILESS_MAIN(TestImportWarnings)
#include "tst_ImportWarnings.moc"
