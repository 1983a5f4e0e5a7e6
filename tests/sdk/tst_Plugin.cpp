#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

#include <QDockWidget>
#include <QLabel>

namespace {

class FirstDock final : public orv::Dock {
    QWidget* build() override { return new QLabel; }
};

class SecondDock final : public orv::Dock {
public:
    SecondDock()
        : Dock(QStringLiteral("Another name"))
    {
        m_version = "9.9";
    }

private:
    QWidget* build() override { return new QLabel; }
};

class AngleEditor final : public orv::FieldEditor<SFAngle> {
    void build() override { }
};

} // namespace

ORV_PLUGIN("Posts", "1.2.3", FirstDock, AngleEditor, SecondDock)

// The plug-in that ORV_PLUGIN makes.
class TestPlugin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itHasAnExtensionOfEachClassInTheirOrder()
    {
        OrvPlugin* const plugin = loadPlugin();
        QCOMPARE(plugin->getName(), VbString("Posts"));
        QCOMPARE(plugin->getVersion(), VbString("1.2.3"));
        plugin->load();
        const QList<OrvExtension*> extensions = plugin->getExtensions();
        QStringList names;
        QStringList versions;
        for (const OrvExtension* const extension : extensions) {
            names << orv::toQString(extension->getName());
            versions << orv::toQString(extension->getVersion());
        }
        QCOMPARE(names,
            QStringList({QStringLiteral("First Dock"), QStringLiteral("SFAngle"), QStringLiteral("Another name")}));
        QCOMPARE(versions, QStringList({QStringLiteral("1.2.3"), QStringLiteral("1.2.3"), QStringLiteral("9.9")}));
        // Of two editors of one type, the docks show that with the higher address.
        QVERIFY(std::is_sorted(extensions.begin(), extensions.end(), std::less<>()));
        plugin->unload();
        unloadPlugin();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void itCanBeMadeAgain()
    {
        OrvPlugin* const plugin = loadPlugin();
        plugin->load();
        plugin->unload();
        unloadPlugin();
        QVERIFY(loadPlugin() != nullptr);
        unloadPlugin();
    }

    void titlesComeFromTheNamesOfClasses_data()
    {
        QTest::addColumn<QByteArray>("classes");
        QTest::addColumn<QStringList>("titles");

        QTest::newRow("one") << QByteArray("LampBar") << QStringList{QStringLiteral("Lamp Bar")};
        QTest::newRow("namespaces") << QByteArray("a::b::LampBar, Dock")
                                    << QStringList{QStringLiteral("Lamp Bar"), QStringLiteral("Dock")};
        QTest::newRow("capitals") << QByteArray("HTMLDock") << QStringList{QStringLiteral("HTMLDock")};
    }
    void titlesComeFromTheNamesOfClasses()
    {
        QFETCH(QByteArray, classes);
        QFETCH(QStringList, titles);
        QCOMPARE(orv::titlesOf(classes.constData()), titles);
    }
};

QTEST_MAIN(TestPlugin)
#include "tst_Plugin.moc"
