#include "TestFiles.h"
#include "extender/Recording.h"

#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"

#include "meridane/base/errors/NxDebugError.h"

#include <QTemporaryDir>
#include <QTest>

#include <elf.h>

using namespace Qt::StringLiterals;

class TestPluginLibrary : public QObject {
    Q_OBJECT

private:
    static QString pathOf(const QString& name) { return QStringLiteral(PLUGIN_FOLDER "/lib%1.so").arg(name); }

    static QString brokenPath(const QString& name)
    {
        return QStringLiteral(BROKEN_PLUGIN_FOLDER "/lib%1.so").arg(name);
    }

    static QStringList takeCalls()
    {
        const QStringList calls = QCoreApplication::instance()->property("calls").toStringList();
        QCoreApplication::instance()->setProperty("calls", QVariant());
        return calls;
    }

private Q_SLOTS:
    void cleanup() { takeCalls(); }

    void aSoundPluginIsMadeLoadedUnloadedAndDestroyed()
    {
        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(pathOf(u"Sound"_s)), std::nullopt);
        QCOMPARE(takeCalls(), words("construct load"));
        QCOMPARE(manager.getExtensions().size(), 1);
        manager.unloadPlugins();
        QCOMPARE(takeCalls(), words("unload destroy"));
        QVERIFY(manager.getExtensions().isEmpty());
    }

    void aPluginCanBeLoadedAgainAfterItWasUnloaded()
    {
        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(pathOf(u"Sound"_s)), std::nullopt);
        manager.unloadPlugins();
        takeCalls();
        QCOMPARE(manager.loadPlugin(pathOf(u"Sound"_s)), std::nullopt);
        QCOMPARE(takeCalls(), words("construct load"));
    }

    void theManagersEndUnloadsAndDestroys()
    {
        {
            OrvPluginsManager manager;
            QCOMPARE(manager.loadPlugin(pathOf(u"Sound"_s)), std::nullopt);
            QCOMPARE(manager.addProfile(
                         std::make_unique<OrvProfile>(u"All"_s, QList<OrvProfile::Entry>{{u"*"_s, true, {}}})),
                std::nullopt);
            manager.setActiveProfile(manager.findProfile(u"All"_s));
            takeCalls();
        }
        QCOMPARE(takeCalls(), words("deactivate unload destroy"));
    }

    void aBrokenPluginIsToldInOneLineAndLeftOut_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QStringList>("calls");

        const auto plugin = [](const char* name, const char* message, const QStringList& calls = {}) {
            QTest::newRow(name) << pathOf(QString::fromUtf8(name)) << QString::fromUtf8(message) << calls;
        };
        plugin("NoSuchPlugin", "there is no such file");
        QTest::newRow("folder") << QStringLiteral(PLUGIN_FOLDER) << u"it is a folder, not a plug-in"_s << QStringList();
        QTest::newRow("device") << u"/dev/null"_s << u"it isn't a regular file"_s << QStringList();
        plugin("NoLoadPlugin", "it isn't a plug-in: it doesn't export the function \"loadPlugin\"");
        plugin("NoUnloadPlugin", "it isn't a plug-in: it doesn't export the function \"unloadPlugin\"");
        plugin("ReturnsNull", "its \"loadPlugin\" returned no plug-in");
        plugin("ThrowsInLoadPlugin", "its \"loadPlugin\" threw an exception: no licence for this machine");
        plugin("ThrowsInLoad", "it can't be loaded, for it threw an exception: no such font",
            words("construct load unload destroy"));
        plugin("OtherInterfaceVersion", "it was built against version 5 of the plug-in interface; this is version 4",
            words("construct destroy"));
        plugin("OtherVersionThrows",
            "it was built against version 5 of the plug-in interface; this is version 4; its \"unloadPlugin\" threw an "
            "exception: the licence was lost");
    }
    void aBrokenPluginIsToldInOneLineAndLeftOut()
    {
        QFETCH(QString, fileName);
        QFETCH(QString, message);
        QFETCH(QStringList, calls);

        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(fileName), fileName + u": "_s + message);
        QCOMPARE(takeCalls(), calls);
        QVERIFY(manager.getExtensions().isEmpty());
        QCOMPARE(manager.loadPlugin(pathOf(u"Sound"_s)), std::nullopt);
        QCOMPARE(manager.getExtensions().size(), 1);
    }

    void aFileThatIsNoLibraryIsToldWithTheSystemsReason_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("This is no library.\n");
        QTest::newRow("cut off behind the magic number") << QByteArray("\x7f"
                                                                       "ELF\x02\x01\x01",
            7);
        // The fifth byte is the size of addresses.
        const QByteArray magic("\x7f"
                               "ELF");
        QTest::newRow("of another word size") << magic + QByteArray("\x01\x01\x01") + QByteArray(100, '\0');
        QTest::newRow("segments of another size") << magic + QByteArray("\x02\x01\x01") + QByteArray(100, '\0');
    }
    void aFileThatIsNoLibraryIsToldWithTheSystemsReason()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libforeign.so"_s);
        writeFile(fileName, content);

        OrvPluginsManager manager;
        const QString message = manager.loadPlugin(fileName).value();
        const QString start = fileName + u": it can't be loaded as a plug-in: "_s;
        QVERIFY2(message.startsWith(start), qPrintable(message));
        QVERIFY2(message.size() > start.size(), qPrintable(message));
        QVERIFY2(!message.contains(u'\n'), qPrintable(message));
        QCOMPARE(message.count(fileName), 1);
    }

    void aLibraryCutOffIsTold_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::newRow("in the first segment") << qint64(3000);
        QTest::newRow("behind the first page") << qint64(5000);
    }
    void aLibraryCutOffIsTold()
    {
        QFETCH(qint64, size);
        QFile sound(pathOf(u"Sound"_s));
        QVERIFY(sound.open(QIODevice::ReadOnly));
        QVERIFY(sound.size() > size);
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libcut.so"_s);
        writeFile(fileName, sound.read(size));

        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(fileName), fileName + u": it can't be loaded as a plug-in: the file is cut off"_s);
    }

    void aLibraryWhoseHeaderPointsBehindItsEndIsCutOff_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<quint64>("value");
        QTest::newRow("segments far behind") << u"segments"_s << (quint64(1) << 40);
        QTest::newRow("segments where no file reaches") << u"segments"_s << ~quint64(0);
        QTest::newRow("a segment begins behind") << u"segment"_s << (quint64(1) << 40);
    }
    void aLibraryWhoseHeaderPointsBehindItsEndIsCutOff()
    {
        QFETCH(const QString, field);
        QFETCH(const quint64, value);
        QByteArray bytes = readFile(pathOf(u"Sound"_s));
        auto* const header = reinterpret_cast<Elf64_Ehdr*>(bytes.data());
        if (field == u"segments") {
            header->e_phoff = value;
        } else {
            auto* segment = reinterpret_cast<Elf64_Phdr*>(bytes.data() + header->e_phoff);
            while (segment->p_type != PT_LOAD)
                ++segment;
            segment->p_offset = value;
        }
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libcut.so"_s);
        writeFile(fileName, bytes);

        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(fileName), fileName + u": it can't be loaded as a plug-in: the file is cut off"_s);
    }

    // The code of a library of another interface must not run, since it takes the members of classes to be elsewhere.
    void aLibraryOfAnotherInterfaceIsRefusedBeforeItsCodeRuns()
    {
        const QByteArray hash(ORVANE_INTERFACE_HASH);
        const QByteArray otherHash = QByteArray(hash.size(), '0');
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libother.so"_s);
        writeFile(fileName, readFile(pathOf(u"Sound"_s)).replace(hash, otherHash));

        OrvPluginsManager manager;
        const QString stamp = QStringLiteral(ORVANE_PLUGIN_STAMP);
        QCOMPARE(manager.loadPlugin(fileName),
            u"%1: it was built against the plug-in interface %2; this is %3; build it again"_s.arg(
                fileName, QString(stamp).replace(QString::fromLatin1(hash), QString::fromLatin1(otherHash)), stamp));
        QCOMPARE(takeCalls(), QStringList());
        QVERIFY(manager.getExtensions().isEmpty());
    }

    // Some sources were compiled again after a header had changed, and others weren't.
    void aLibraryOfTwoInterfacesIsRefused()
    {
        const QByteArray hash(ORVANE_INTERFACE_HASH);
        QByteArray bytes = readFile(pathOf(u"Sound"_s));
        QCOMPARE(bytes.count(hash), 2);
        bytes.replace(bytes.indexOf(hash), hash.size(), QByteArray(hash.size(), '1'));
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libmixed.so"_s);
        writeFile(fileName, bytes);

        OrvPluginsManager manager;
        const QString message = manager.loadPlugin(fileName).value();
        QVERIFY2(message.contains(u"its parts were built against different plug-in interfaces, 1111"_s),
            qPrintable(message));
        QCOMPARE(takeCalls(), QStringList());
    }

    void aDamagedStampIsNone_data()
    {
        QTest::addColumn<int>("offset");
        QTest::newRow("the length of the owner") << -20;
        QTest::newRow("the length of the text") << -16;
    }
    void aDamagedStampIsNone()
    {
        QFETCH(const int, offset);
        QByteArray bytes = readFile(pathOf(u"Sound"_s));
        const qsizetype stamp = bytes.indexOf(ORVANE_PLUGIN_STAMP);
        QVERIFY(stamp > 0);
        bytes.replace(stamp + offset, 4, QByteArray(4, '\xff'));
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libdamaged.so"_s);
        writeFile(fileName, bytes);

        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(fileName),
            fileName
                + u": it can't be loaded as a plug-in: it has no stamp of the plug-in interface; build it with the "
                  u"header "
                  "OrvPlugin.h of this version"_s);
        QCOMPARE(takeCalls(), QStringList());
    }

    // Dynamic loading says of such a file that it isn't there.
    void aLibraryForAnotherProcessorIsTold()
    {
        QByteArray bytes = readFile(pathOf(u"Sound"_s));
        auto* const header = reinterpret_cast<Elf64_Ehdr*>(bytes.data());
        header->e_machine = header->e_machine == EM_S390 ? EM_PPC64 : EM_S390;
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libforeign.so"_s);
        writeFile(fileName, bytes);
        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(fileName),
            fileName + u": it can't be loaded as a plug-in: it was built for another processor"_s);
    }

    // An object of the second class would have no type, and a scene with it couldn't be read again.
    void aPluginWithAClassOfAnotherOneIsLeftOut_data()
    {
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QString>("clash");
        QTest::newRow("node class") << u"Gear"_s << u"SameNodeClass"_s
                                    << u"\"BrokenGear\" of "_s + brokenPath(u"Gear"_s);
        QTest::newRow("field class") << u"Angle"_s << u"SameFieldClass"_s
                                     << u"\"BrokenAngle\" of "_s + brokenPath(u"Angle"_s);
        QTest::newRow("class of the tool") << u"Gear"_s << u"ClassOfTheTool"_s << u"\"Group\" of the tool itself"_s;
    }
    void aPluginWithAClassOfAnotherOneIsLeftOut()
    {
        QFETCH(const QString, other);
        QFETCH(const QString, plugin);
        QFETCH(const QString, clash);
        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(brokenPath(other)), std::nullopt);
        const QString message = brokenPath(plugin)
            + u": it was left out, since its classes have the names of others: "_s + clash
            + u"; rename them, or use only one of the two"_s;
        QCOMPARE(manager.loadPlugin(brokenPath(plugin)), message);
        QCOMPARE(manager.getExtensions().size(), 1);
        // It is in memory now, where its classes still are no classes.
        QCOMPARE(manager.loadPlugin(brokenPath(plugin)), message);
    }

    void aMissingSymbolIsNamedWhenTheLibraryIsLoaded()
    {
        OrvPluginsManager manager;
        const QString message = manager.loadPlugin(pathOf(u"UnresolvedSymbol"_s)).value();
        QVERIFY2(message.contains(u"makeSomewhereElse"_s), qPrintable(message));
        QVERIFY2(!message.contains(u'\n'), qPrintable(message));
    }

    void anUnreadableFileIsTold()
    {
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(u"libunreadable.so"_s);
        QVERIFY(QFile::copy(pathOf(u"Sound"_s), fileName));
        QVERIFY(QFile::setPermissions(fileName, {}));
        if (QFileInfo(fileName).isReadable())
            QSKIP("this user may read everything");
        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(fileName), fileName + u": it can't be read"_s);
    }

    void theSameFileIsLoadedOnceUnderWhateverName()
    {
        const QTemporaryDir folder;
        const QString link = folder.filePath(u"liblink.so"_s);
        QVERIFY(QFile::link(pathOf(u"Sound"_s), link));
        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(pathOf(u"Sound"_s)), std::nullopt);
        QCOMPARE(manager.loadPlugin(pathOf(u"Sound"_s)), pathOf(u"Sound"_s) + u": it is loaded already"_s);
        QCOMPARE(manager.loadPlugin(link), link + u": it is loaded already"_s);
        QCOMPARE(manager.getExtensions().size(), 1);
    }

    void whatUnloadingThrowsIsPostedAndTheRestIsUnloaded()
    {
        QStringList errors;
        const auto keep = [](const NxError* error, void* data) {
            static_cast<QStringList*>(data)->append(QString::fromUtf8(error->getDebugString().toUtf8()));
        };
        NxDebugError::setHandlerCallback(keep, &errors);
        {
            OrvPluginsManager manager;
            QCOMPARE(manager.loadPlugin(pathOf(u"ThrowsInUnload"_s)), std::nullopt);
            takeCalls();
        }
        NxDebugError::setHandlerCallback(nullptr, nullptr);
        QCOMPARE(takeCalls(), words("unload destroy"));
        QCOMPARE(errors.size(), 2);
        QVERIFY2(errors.at(0).contains(u"still in use"_s), qPrintable(errors.at(0)));
        QVERIFY2(errors.at(1).contains(u"of unknown kind"_s), qPrintable(errors.at(1)));
    }

    void pluginsAreFoundByTheirNamesInTheOrderOfFolders()
    {
        const QTemporaryDir first;
        const QTemporaryDir second;
        const QString b = first.filePath(u"libkal_orvane_extender_b.so"_s);
        const QString a = first.filePath(u"libkal_orvane_extender_a.so"_s);
        const QString c = second.filePath(u"libkal_orvane_extender_c.so"_s);
        const QStringList others{first.filePath(u"libother.so"_s), first.filePath(u"kal_orvane_extender_d.so"_s),
            first.filePath(u"libkal_orvane_extender_e.so.1"_s), second.filePath(u"libkal_orvane_extender_a.so"_s)};
        for (const QString& fileName : QStringList{b, a, c} + others)
            writeFile(fileName, {});
        QVERIFY(QDir(second.path()).mkdir(u"libkal_orvane_extender_folder.so"_s));

        QCOMPARE(OrvPluginsManager::findPlugins({first.path(), second.path()}), (QStringList{a, b, c}));
        QCOMPARE(OrvPluginsManager::findPlugins({first.filePath(u"missing"_s)}), QStringList());
        QCOMPARE(OrvPluginsManager::findPlugins({}), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestPluginLibrary)
#include "tst_PluginLibrary.moc"
