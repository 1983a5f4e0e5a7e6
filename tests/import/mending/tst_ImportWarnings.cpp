#include "orvane/import/mending/ImportWarnings.h"

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
        std::string list;
        for (int index = 0; index < 43; ++index) {
            const std::string name = "part " + std::to_string(index);
            warnings.add("left out", name);
            list += index < 40 ? '"' + name + "\", " : "";
        }
        warnings.add("left out", "");
        warnings.add("left out", "");
        QCOMPARE(warnings.texts().front(), "left out: " + list + "2 without a name, 3 more");
    }
};

QTEST_GUILESS_MAIN(TestImportWarnings)
#include "tst_ImportWarnings.moc"
