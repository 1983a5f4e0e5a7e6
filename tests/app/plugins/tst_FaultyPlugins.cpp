#include "orvane/app/plugins/GuardedApplication.h"
#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

// What a running plug-in throws ends with the call, and only that plug-in stops.
class TestFaultyPlugins : public QObject {
    Q_OBJECT

    static QString pathOf(const QString& name) { return QStringLiteral(PLUGIN_FOLDER "/lib%1.so").arg(name); }
    static QStringList calls() { return qApp->property("calls").toStringList(); }
    static void forgetCalls() { qApp->setProperty("calls", QVariant()); }
    static void failIn(const char* place) { qApp->setProperty("fault", QString::fromLatin1(place)); }

    [[nodiscard]] OrvExtension* extension(const char* name) const
    {
        for (OrvExtension* const each : m_manager->getExtensions()) {
            if (each->getName() == VbString(name))
                return each;
        }
        return nullptr;
    }

    std::unique_ptr<OrvServices> m_services;
    std::unique_ptr<OrvPluginsManager> m_manager;
    NxRef<NxTransform> m_node;
    QStringList m_errors;

private Q_SLOTS:
    void init()
    {
        m_services = std::make_unique<OrvServices>();
        m_manager = std::make_unique<OrvPluginsManager>();
        m_node = new NxTransform;
        m_errors.clear();
        const auto keep = [](const NxError* error, void* data) {
            static_cast<QStringList*>(data)->append(QString::fromUtf8(error->getDebugString().toUtf8()));
        };
        NxDebugError::setHandlerCallback(keep, &m_errors);
        QCOMPARE(m_manager->loadPlugin(pathOf(u"ThrowsLater"_s)), std::nullopt);
        QCOMPARE(m_manager->loadPlugin(pathOf(u"Sound"_s)), std::nullopt);
        QCOMPARE(
            m_manager->addProfile(std::make_unique<OrvProfile>(u"All"_s, QList<OrvProfile::Entry>{{u"*"_s, true, {}}})),
            std::nullopt);
        m_manager->setActiveProfile(m_manager->findProfile(u"All"_s));
        forgetCalls();
    }
    void cleanup()
    {
        failIn("");
        m_manager.reset();
        m_services.reset();
        m_node = {};
        NxDebugError::setHandlerCallback(nullptr, nullptr);
        forgetCalls();
    }

    void whatIsThrownPutsThePluginToRest_data()
    {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QString>("message");
        QTest::newRow("slot") << QByteArray("slot") << u"during the selection of a field: no such dial"_s;
        QTest::newRow("sensor") << QByteArray("sensor") << u"during a sensor's callback: vector::"_s;
        QTest::newRow("event") << QByteArray("event") << u"during an event: of unknown kind"_s;
    }
    void whatIsThrownPutsThePluginToRest()
    {
        QFETCH(const QByteArray, place);
        QFETCH(const QString, message);
        failIn(place.constData());
        m_services->selectField(&m_node->translation);
        m_node->translation.setValue(VbVec3f(1, 2, 3));
        extension("Throwing")->setProperty("pushed", 1);
        QTRY_COMPARE(calls(), (QStringList{u"deactivate"_s, u"Throwing.deactivate"_s, u"activate"_s}));
        QCOMPARE(m_errors.size(), 1);
        QVERIFY2(m_errors.front().startsWith(pathOf(u"ThrowsLater"_s) + u": it threw an exception "_s + message),
            qPrintable(m_errors.front()));
        QVERIFY(extension("Throwing")->getProfileSetting() == nullptr);
        QVERIFY(extension("Counting")->getProfileSetting() != nullptr);
    }

    void theOthersHearOfTheSelectionAllTheSame()
    {
        failIn("slot");
        const NxField* heard = nullptr;
        QObject context;
        connect(m_services.get(), &OrvServices::selectedFieldChanged, &context,
            [&](const NxField* field) { heard = field; });
        m_services->selectField(&m_node->translation);
        QTRY_COMPARE(heard, static_cast<const NxField*>(&m_node->translation));
        QCOMPARE(m_services->getSelectedField(), static_cast<NxField*>(&m_node->translation));
    }

    void sensorsBehindTheOneThatThrowsAreCalled()
    {
        failIn("sensor");
        m_services->selectField(&m_node->translation);
        int called = 0;
        NxFieldSensor sensor([](void* count, NxSensor*) { ++*static_cast<int*>(count); }, &called);
        sensor.attach(&m_node->translation);
        m_node->translation.setValue(VbVec3f(1, 2, 3));
        QTRY_COMPARE(called, 1);
        QTRY_VERIFY(NxDelayQueue::getDefault().isEmpty());
    }

    void itStaysAtRestWhenTheProfileIsChosenAgain()
    {
        failIn("slot");
        m_services->selectField(&m_node->translation);
        QTRY_VERIFY(extension("Throwing")->getProfileSetting() == nullptr);
        forgetCalls();
        m_manager->setActiveProfile(m_manager->findProfile(u"All"_s));
        QCOMPARE(calls(), (QStringList{u"deactivate"_s, u"activate"_s}));
    }

    // That is the application's own affair.
    void whatNoPluginThrowsIsPassedOn()
    {
        QObject context;
        connect(m_services.get(), &OrvServices::selectedFieldChanged, &context,
            [] { throw std::runtime_error("no plug-in"); });
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, m_services->selectField(&m_node->translation));
        QCOMPARE(m_errors, QStringList());
    }
};

int main(int argc, char* argv[])
{
    GuardedApplication application(argc, argv);
    TestFaultyPlugins test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_FaultyPlugins.moc"
