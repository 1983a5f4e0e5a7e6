#include "OrvDefaults.h"
#include "ToolHarness.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvPluginsManager.h"

#include "meridane/base/values/VbName.h"

#include <QPointer>

#include <algorithm>
#include <memory>

extern "C" {
OrvPlugin* loadPlugin();
void unloadPlugin();
}

namespace {

struct Entry {
    QString name;
    QString handledType; // empty for what is no editor
};

// In the order of registration.
const QList<Entry> roster{
    {QStringLiteral("Profile Selector"), {}},
    {QStringLiteral("Console"), {}},
    {QStringLiteral("MFColor"), QStringLiteral("MFColor")},
    {QStringLiteral("MFColorRGBA"), QStringLiteral("MFColorRGBA")},
    {QStringLiteral("MField"), QStringLiteral("MField")},
    {QStringLiteral("MFDouble"), QStringLiteral("MFDouble")},
    {QStringLiteral("SFFilePathString"), QStringLiteral("SFFilePathString")},
    {QStringLiteral("MFFloat"), QStringLiteral("MFFloat")},
    {QStringLiteral("MFInt32"), QStringLiteral("MFInt32")},
    {QStringLiteral("MFMatrix"), QStringLiteral("MFMatrix")},
    {QStringLiteral("MFPlane"), QStringLiteral("MFPlane")},
    {QStringLiteral("MFRotation"), QStringLiteral("MFRotation")},
    {QStringLiteral("MFShort"), QStringLiteral("MFShort")},
    {QStringLiteral("MFString"), QStringLiteral("MFString")},
    {QStringLiteral("MFUInt32"), QStringLiteral("MFUInt32")},
    {QStringLiteral("MFUShort"), QStringLiteral("MFUShort")},
    {QStringLiteral("MFVec2f"), QStringLiteral("MFVec2f")},
    {QStringLiteral("MFVec2i32"), QStringLiteral("MFVec2i32")},
    {QStringLiteral("MFVec2s"), QStringLiteral("MFVec2s")},
    {QStringLiteral("MFVec3f"), QStringLiteral("MFVec3f")},
    {QStringLiteral("MFVec4f"), QStringLiteral("MFVec4f")},
    {QStringLiteral("SFBitMask"), QStringLiteral("SFBitMask")},
    {QStringLiteral("SFBool"), QStringLiteral("SFBool")},
    {QStringLiteral("SFBox2f"), QStringLiteral("SFBox2f")},
    {QStringLiteral("SFBox3s"), QStringLiteral("SFBox3s")},
    {QStringLiteral("SFColor"), QStringLiteral("SFColor")},
    {QStringLiteral("SFColorRGBA"), QStringLiteral("SFColorRGBA")},
    {QStringLiteral("SFEnum"), QStringLiteral("SFEnum")},
    {QStringLiteral("SFDouble"), QStringLiteral("SFDouble")},
    {QStringLiteral("SFFloat"), QStringLiteral("SFFloat")},
    {QStringLiteral("SFImage"), QStringLiteral("SFImage")},
    {QStringLiteral("SFInt32"), QStringLiteral("SFInt32")},
    {QStringLiteral("SField"), QStringLiteral("SField")},
    {QStringLiteral("SFMatrix"), QStringLiteral("SFMatrix")},
    {QStringLiteral("SFName"), QStringLiteral("SFName")},
    {QStringLiteral("SFPlane"), QStringLiteral("SFPlane")},
    {QStringLiteral("SFRotation"), QStringLiteral("SFRotation")},
    {QStringLiteral("SFShort"), QStringLiteral("SFShort")},
    {QStringLiteral("SFString"), QStringLiteral("SFString")},
    {QStringLiteral("SFUInt32"), QStringLiteral("SFUInt32")},
    {QStringLiteral("SFUShort"), QStringLiteral("SFUShort")},
    {QStringLiteral("SFVec2f"), QStringLiteral("SFVec2f")},
    {QStringLiteral("SFVec2i32"), QStringLiteral("SFVec2i32")},
    {QStringLiteral("SFVec2s"), QStringLiteral("SFVec2s")},
    {QStringLiteral("SFVec3f"), QStringLiteral("SFVec3f")},
    {QStringLiteral("SFVec4f"), QStringLiteral("SFVec4f")},
    {QStringLiteral("Field Editor"), {}},
    {QStringLiteral("Node Editor"), {}},
};

QString nameOf(const OrvExtension* extension)
{
    return QString::fromUtf8(extension->getName().toUtf8());
}

} // namespace

class TestOrvDefaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void constructorWritesTheStrings()
    {
        const OrvDefaults plugin;
        QCOMPARE(plugin.getName(), VbString("OrvDefaults"));
        QCOMPARE(plugin.getAuthor(), VbString("KLD"));
        QCOMPARE(plugin.getDescription(), VbString("Plug-in which loads Orvane default extensions."));
        QCOMPARE(plugin.getVersion(), VbString("1.0.0"));
        QCOMPARE(plugin.getInterfaceVersion(), orvaneInterfaceVersion);
    }

    void constructorRegistersNothing()
    {
        const OrvDefaults plugin;
        QVERIFY(plugin.getExtensions().isEmpty());
    }

    void extensionsAreRegisteredInTheirOrder()
    {
        OrvDefaults plugin;
        plugin.load();
        QStringList names;
        for (const OrvExtension* const extension : plugin.getExtensions())
            names << nameOf(extension);
        QStringList expected;
        for (const Entry& entry : roster)
            expected << entry.name;
        QCOMPARE(names, expected);
        plugin.unload();
    }

    void editorsHandleTheirTypes()
    {
        OrvDefaults plugin;
        plugin.load();
        QCOMPARE(plugin.getExtensions().size(), roster.size());
        for (qsizetype index = 0; index < roster.size(); ++index) {
            auto* const editor = dynamic_cast<OrvEditor*>(plugin.getExtensions().at(index));
            QCOMPARE(editor == nullptr, roster.at(index).handledType.isEmpty());
            if (editor != nullptr)
                QCOMPARE(
                    QString::fromLatin1(editor->getHandledType().getName().getString()), roster.at(index).handledType);
        }
        plugin.unload();
    }

    void editorsBearTheNamesOfTheirClasses()
    {
        OrvDefaults plugin;
        plugin.load();
        for (const OrvExtension* const extension : plugin.getExtensions()) {
            // Some have no meta object of their own, so their class follows from the name.
            const QString word = nameOf(extension);
            const QHash<QString, QString> stems{{QStringLiteral("SField"), QStringLiteral("SFLine")},
                {QStringLiteral("MField"), QStringLiteral("MFDefaultField")}};
            const QString stem = stems.value(word, word);
            if (dynamic_cast<const OrvEditor*>(extension) != nullptr)
                QCOMPARE(extension->objectName(), QStringLiteral("Dv%1Widget").arg(stem));
        }
        plugin.unload();
    }

    void declarationDecidesTheAddresses()
    {
        OrvDefaults plugin;
        plugin.load();
        QList<OrvExtension*> byAddress = plugin.getExtensions();
        std::sort(byAddress.begin(), byAddress.end(), std::less<>());
        QStringList declared;
        for (const OrvExtension* const extension : byAddress)
            declared << nameOf(extension);
        QStringList expected;
        for (const Entry& entry : roster)
            expected << entry.name;
        // The one that is registered elsewhere than it is declared.
        const QString path = QStringLiteral("SFFilePathString");
        expected.removeOne(path);
        expected.insert(expected.indexOf(QStringLiteral("SFFloat")), path);
        QCOMPARE(declared, expected);
        plugin.unload();
    }

    void unloadPluginDestroysTheObjectOnce()
    {
        OrvPlugin* const plugin = loadPlugin();
        QVERIFY(plugin != nullptr);
        QVERIFY(plugin->getExtensions().isEmpty()); // loading is the host's step
        plugin->load();
        const QPointer<OrvExtension> extension = plugin->getExtensions().constFirst();
        plugin->unload();
        QVERIFY(!extension.isNull());
        unloadPlugin();
        QVERIFY(extension.isNull());
        unloadPlugin();
    }

    void unloadPluginWithoutAPluginDoesNothing()
    {
        unloadPlugin();
        unloadPlugin();
    }

    void secondLoadPluginReplacesTheFirstObject()
    {
        const std::unique_ptr<OrvDefaults> first(static_cast<OrvDefaults*>(loadPlugin()));
        first->load();
        const QPointer<OrvExtension> extension = first->getExtensions().constFirst();
        OrvPlugin* const second = loadPlugin();
        QVERIFY(second != first.get());
        unloadPlugin();
        QVERIFY(!extension.isNull());
        first->unload();
    }

private:
    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestOrvDefaults)
#include "tst_OrvDefaults.moc"
