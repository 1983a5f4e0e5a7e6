#include "extender/Recording.h"

#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

class TestOrvPlugin : public QObject {
    Q_OBJECT

    QStringList m_calls;

private Q_SLOTS:
    void init() { m_calls.clear(); }

    void extensionsAreLoadedInTheOrderOfRegistrationAndUnloadedInReverse()
    {
        RecordingExtension a(u"a"_s, m_calls);
        RecordingEditor b(u"b"_s, m_calls);
        RecordingExtension c(u"c"_s, m_calls);
        // The order of the objects has nothing to do with it.
        TestPlugin plugin({&c, &a, &b});
        QCOMPARE(plugin.getExtensions(), (QList<OrvExtension*>{&c, &a, &b}));
        plugin.load();
        QCOMPARE(taken(m_calls), words("c.load a.load b.load"));
        plugin.unload();
        QCOMPARE(taken(m_calls), words("b.unload a.unload c.unload"));
    }

    void loadingOrUnloadingTwiceDoesNothingMore()
    {
        RecordingExtension a(u"a"_s, m_calls);
        TestPlugin plugin({&a});
        plugin.load();
        plugin.load();
        plugin.unload();
        plugin.unload();
        QCOMPARE(m_calls, words("a.load a.unload"));
    }

    void unloadingWhatWasNeverLoadedDoesNothing()
    {
        RecordingExtension a(u"a"_s, m_calls);
        TestPlugin plugin({&a});
        plugin.unload();
        QVERIFY(m_calls.isEmpty());
    }

    void whatIsRegisteredLaterIsLoadedByTheNextCall()
    {
        RecordingExtension a(u"a"_s, m_calls);
        RecordingExtension b(u"b"_s, m_calls);
        TestPlugin plugin({&a});
        plugin.load();
        plugin.addExtension(&b);
        plugin.load();
        QCOMPARE(m_calls, words("a.load b.load"));
    }

    void registeringTwiceOrNothingChangesNothing()
    {
        RecordingExtension a(u"a"_s, m_calls);
        TestPlugin plugin({&a, nullptr, &a});
        QCOMPARE(plugin.getExtensions(), QList<OrvExtension*>{&a});
    }

    void whatWasLoadedAheadOfAnExceptionIsUnloadedAndNoMore()
    {
        RecordingExtension a(u"a"_s, m_calls);
        RecordingExtension b(u"b"_s, m_calls);
        RecordingExtension c(u"c"_s, m_calls);
        b.whenLoaded = [] { throw std::runtime_error("b"); };
        TestPlugin plugin({&a, &b, &c});
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, plugin.load());
        plugin.unload();
        QCOMPARE(m_calls, words("a.load b.load a.unload"));
    }

    void unloadingGoesOnBehindAnException()
    {
        RecordingExtension a(u"a"_s, m_calls);
        RecordingExtension b(u"b"_s, m_calls);
        b.whenUnloaded = [] { throw std::runtime_error("b"); };
        TestPlugin plugin({&a, &b});
        plugin.load();
        taken(m_calls);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, plugin.unload());
        plugin.unload();
        QCOMPARE(m_calls, words("b.unload a.unload"));
    }

    void itKnowsTheInterfaceItWasBuiltAgainst()
    {
        QCOMPARE(TestPlugin({}).getInterfaceVersion(), orvaneInterfaceVersion);
        QCOMPARE(TestPlugin({}, 7).getInterfaceVersion(), 7);
    }
};

QTEST_APPLESS_MAIN(TestOrvPlugin)
#include "tst_OrvPlugin.moc"
