#include "TestFiles.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/LockedFile.h"
#include "orvane/app/plugins/LoadingMark.h"
#include "orvane/app/plugins/PluginLoader.h"
#include "orvane/app/plugins/PluginModel.h"
#include "orvane/app/plugins/PluginsDialog.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvServices.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using State = PluginRecord::State;

class TestPluginLoader : public QObject {
    Q_OBJECT

    struct Tool {
        explicit Tool(const QString& folder)
            : settings(AppSettings::Mode::File, folder + u"/orvane.ini"_s)
            , loader(manager, settings, folder + u"/loading"_s)
        {
        }

        OrvServices services;
        OrvPluginsManager manager;
        AppSettings settings;
        PluginLoader loader;
    };

    static QString pathOf(const QString& name) { return QStringLiteral(PLUGIN_FOLDER "/lib%1.so").arg(name); }
    QString path() const { return m_folder->path(); }
    /// What a program leaves that is ended while it loads a plug-in.
    void leaveNote(const QString& plugin) const
    {
        QVERIFY(QDir().mkpath(path() + u"/loading"_s));
        writeFile(
            path() + u"/loading/left.loading"_s, pathOf(u"ReturnsNull"_s).toUtf8() + '\n' + plugin.toUtf8() + '\n');
    }
    static QModelIndex cell(const QTableView& view, int column) { return view.model()->index(0, column); }
    static void clickBox(QTableView& view)
    {
        const QRect row = view.visualRect(cell(view, PluginModel::NameColumn));
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.rect = row;
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        const QRect box = view.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, box.center());
    }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aLoadedPluginIsDescribed()
    {
        Tool tool(path());
        QCOMPARE(tool.loader.load({pathOf(u"Sound"_s)}), QStringList());
        QCOMPARE(tool.loader.records().size(), std::size_t{1});
        const PluginRecord& record = tool.loader.records().front();
        QVERIFY(record.state == State::Loaded);
        QCOMPARE(record.extensions.size(), 1);
        QVERIFY(record.milliseconds > 0);
    }

    void aPluginThatFailsIsOneMessageAndTheOthersLoad()
    {
        Tool tool(path());
        const QStringList messages = tool.loader.load({pathOf(u"ThrowsInLoad"_s), pathOf(u"Sound"_s)});
        QCOMPARE(messages.size(), 1);
        QVERIFY(tool.loader.records().at(0).state == State::Failed);
        QCOMPARE(tool.loader.records().at(0).message, messages.front());
        QVERIFY(tool.loader.records().at(1).state == State::Loaded);
    }

    void nothingIsLeftInTheFolderOfNotes()
    {
        Tool tool(path());
        tool.loader.load({pathOf(u"Sound"_s)});
        QCOMPARE(QDir(path() + u"/loading"_s).entryList(QDir::Files), QStringList());
    }

    void aPluginThatEndedTheProgramIsLeftOutUntilTheUserDecides()
    {
        leaveNote(pathOf(u"Sound"_s));
        for (int start = 0; start < 2; ++start) {
            Tool tool(path());
            QCOMPARE(tool.loader.load({pathOf(u"Sound"_s)}), QStringList());
            QVERIFY(tool.loader.records().front().state == State::Suspect);
            QCOMPARE(tool.manager.getExtensions().size(), 0);
            QCOMPARE(QDir(path() + u"/loading"_s).entryList(QDir::Files), QStringList());
        }
        {
            Tool tool(path());
            tool.loader.load({pathOf(u"Sound"_s)});
            QCOMPARE(tool.loader.loadNow(pathOf(u"Sound"_s)), QString());
            QVERIFY(tool.loader.records().front().state == State::Loaded);
            QCOMPARE(tool.manager.getExtensions().size(), 1);
        }
        Tool tool(path());
        tool.loader.load({pathOf(u"Sound"_s)});
        QVERIFY(tool.loader.records().front().state == State::Loaded);
    }

    // A program that is being started in another window loads it just now.
    void aNoteOfARunningProgramSaysNothing()
    {
        leaveNote(pathOf(u"Sound"_s));
        const auto running = LockedFile::lock(path() + u"/loading/left.loading"_s);
        QVERIFY(running != nullptr);
        Tool tool(path());
        tool.loader.load({pathOf(u"Sound"_s)});
        QVERIFY(tool.loader.records().front().state == State::Loaded);
        QVERIFY(QFile::exists(running->fileName()));
    }

    void aNoteThatIsCutOffSaysNothing()
    {
        QVERIFY(QDir().mkpath(path() + u"/loading"_s));
        writeFile(path() + u"/loading/left.loading"_s, pathOf(u"Sound"_s).toUtf8());
        Tool tool(path());
        tool.loader.load({pathOf(u"Sound"_s)});
        QVERIFY(tool.loader.records().front().state == State::Loaded);
    }

    void aFolderThatCannotBeWrittenIsNoFailure()
    {
        writeFile(path() + u"/loading"_s, "a file where the folder should be");
        Tool tool(path());
        QCOMPARE(tool.loader.load({pathOf(u"Sound"_s)}), QStringList());
        QVERIFY(tool.loader.records().front().state == State::Loaded);
    }

    void oneThatIsSwitchedOffIsLeftOutUnlessItIsAskedFor()
    {
        {
            Tool tool(path());
            tool.loader.load({pathOf(u"Sound"_s)});
            tool.loader.setSwitchedOff(pathOf(u"Sound"_s), true);
            QVERIFY(tool.loader.records().front().state == State::Loaded);
        }
        {
            Tool tool(path());
            tool.loader.load({pathOf(u"Sound"_s)});
            QVERIFY(tool.loader.records().front().state == State::LeftOut);
            QCOMPARE(tool.manager.getExtensions().size(), 0);
        }
        Tool tool(path());
        tool.loader.load({}, {pathOf(u"Sound"_s)});
        QVERIFY(tool.loader.records().front().state == State::Loaded);
    }

    void extensionsOfTheSameNameAreTold()
    {
        const QString copy = path() + u"/libcopy.so"_s;
        QVERIFY(QFile::copy(pathOf(u"Sound"_s), copy));
        Tool tool(path());
        const QStringList messages = tool.loader.load({pathOf(u"Sound"_s), copy});
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.front().startsWith(copy + u": its extension"_s), qPrintable(messages.front()));
        QVERIFY(tool.loader.records().at(1).state == State::Loaded);
    }

    void thePageSwitchesAPluginOff()
    {
        Tool tool(path());
        tool.loader.load({pathOf(u"Sound"_s)});
        PluginsDialog dialog(tool.loader);
        dialog.show();
        auto* const view = dialog.findChild<QTableView*>(u"plugins"_s);
        const QAbstractItemModelTester tester(view->model());
        QCOMPARE(cell(*view, PluginModel::StateColumn).data().toString(), u"Loaded"_s);
        QVERIFY(!dialog.findChild<QPushButton*>(u"loadNow"_s)->isEnabled());
        clickBox(*view);
        QVERIFY(tool.loader.isSwitchedOff(pathOf(u"Sound"_s)));
        QCOMPARE(cell(*view, PluginModel::NameColumn).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        clickBox(*view);
        QVERIFY(!tool.loader.isSwitchedOff(pathOf(u"Sound"_s)));
    }

    void thePageSaysWhyOneFailedAndLoadsOneThatWasLeftOut()
    {
        leaveNote(pathOf(u"Sound"_s));
        Tool tool(path());
        tool.loader.load({pathOf(u"Sound"_s), pathOf(u"ThrowsInLoad"_s)});
        PluginsDialog dialog(tool.loader);
        dialog.show();
        auto* const view = dialog.findChild<QTableView*>(u"plugins"_s);
        auto* const details = dialog.findChild<QLabel*>(u"pluginDetails"_s);
        QVERIFY2(details->text().contains(u"ended while it was loading"_s), qPrintable(details->text()));
        QTest::mouseClick(dialog.findChild<QPushButton*>(u"loadNow"_s), Qt::LeftButton);
        QCOMPARE(cell(*view, PluginModel::StateColumn).data().toString(), u"Loaded"_s);
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Down);
        QVERIFY2(details->text().contains(u"no such font"_s), qPrintable(details->text()));
    }
};

QTEST_MAIN(TestPluginLoader)
#include "tst_PluginLoader.moc"
