#include "app/AppScenes.h"

#include "orvane/app/command_line/FieldAccess.h"

#include <QTest>

namespace {

const char* const text = "#mrd 1.0\n"
                         "Group \"rig\" {\n"
                         "  Material \"paint\" { transparency = 0.25 }\n"
                         "  Complexity { value = 0.5 }\n"
                         "}\n";

} // namespace

class TestFieldAccess : public QObject {
    Q_OBJECT

private:
    NxRef<NxGroup> m_scene;

    [[nodiscard]] QString value(const QString& path) const
    {
        const auto result = orvane::fieldText(m_scene.get(), path);
        return result ? result.value() : result.error();
    }

private Q_SLOTS:
    void init()
    {
        m_scene = AppScenes::read(text);
        QVERIFY(m_scene);
    }

    void aFieldIsReadAndSetByItsPath()
    {
        QCOMPARE(value(QStringLiteral("/rig/paint.transparency")), QStringLiteral("0.25"));
        QVERIFY(orvane::setField(m_scene.get(), {QStringLiteral("/rig/paint.transparency"), QStringLiteral("0.75")}));
        QCOMPARE(value(QStringLiteral("/rig/paint.transparency")), QStringLiteral("0.75"));
        QVERIFY(orvane::setField(m_scene.get(), {QStringLiteral("/rig/Complexity[0].value"), QStringLiteral("1")}));
        QCOMPARE(value(QStringLiteral("/rig/Complexity[0].value")), QStringLiteral("1"));
    }

    void whatCanNotBeSetIsToldAndChangesNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("newText");
        QTest::addColumn<QString>("mentions");
        QTest::newRow("no such node") << "/rig/rust.transparency"
                                      << "1"
                                      << "rust";
        QTest::newRow("no such field") << "/rig/paint.opacity"
                                       << "1"
                                       << "opacity";
        QTest::newRow("a node") << "/rig/paint"
                                << "1"
                                << "/rig/paint.field";
        QTest::newRow("a text that the field refuses") << "/rig/paint.transparency"
                                                       << "much"
                                                       << "'much'";
        QTest::newRow("a number and more") << "/rig/paint.transparency"
                                           << "1 2"
                                           << "SFFloat";
        QTest::newRow("no path") << "transparency"
                                 << "1"
                                 << "transparency";
    }

    void whatCanNotBeSetIsToldAndChangesNothing()
    {
        QFETCH(const QString, path);
        QFETCH(const QString, newText);
        QFETCH(const QString, mentions);
        const std::string before = NxSceneWriter::toText(m_scene.get());
        const auto set = orvane::setField(m_scene.get(), {path, newText});
        QVERIFY(!set);
        QVERIFY2(set.error().contains(mentions), qPrintable(set.error()));
        QVERIFY(!set.error().contains(u'\n'));
        QCOMPARE(NxSceneWriter::toText(m_scene.get()), before);
    }

    void tryingATextTellsNobody()
    {
        const auto field = orvane::findAssignedField(
            m_scene.get(), {QStringLiteral("/rig/paint.transparency"), QStringLiteral("1")});
        QVERIFY(field);
        QVERIFY(field.value() != nullptr);
        QCOMPARE(value(QStringLiteral("/rig/paint.transparency")), QStringLiteral("0.25"));
    }
};

QTEST_GUILESS_MAIN(TestFieldAccess)
#include "tst_FieldAccess.moc"
