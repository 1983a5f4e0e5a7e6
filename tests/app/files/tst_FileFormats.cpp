#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/FileDialogs.h"
#include "orvane/app/files/FileFilters.h"
#include "orvane/app/scene/Session.h"
#include "orvane/transfer/FileFormats.h"

#include <QFile>
#include <QFileDialog>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>
#include <QXmlStreamReader>

#include <memory>

namespace {

using orvane::toQString;

QString contentOf(const QString& fileName)
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/") + fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The patterns of a filter such as "Models (*.glb *.obj)", without "*.".
QStringList extensionsIn(const QString& filter)
{
    QStringList extensions;
    static const QRegularExpression pattern(QStringLiteral("\\*\\.([a-z0-9]+)"));
    for (auto match = pattern.globalMatch(filter); match.hasNext();)
        extensions += match.next().captured(1);
    return extensions;
}

QStringList modelExtensions(bool onlyWritable)
{
    QStringList extensions;
    for (const orvane::FileFormat& format : orvane::modelFormats) {
        if (!onlyWritable || format.isWritable())
            extensions += toQString(format.extension);
    }
    return extensions;
}

} // namespace

// Everything that lists file formats lists the same.
class TestFileFormats : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFiltersListThem()
    {
        const QString scene = QStringLiteral("mrd");
        QCOMPARE(extensionsIn(orvane::openFilters().front()), QStringList(scene) + modelExtensions(false));
        QCOMPARE(extensionsIn(orvane::importFilters().front()), modelExtensions(false));
        QCOMPARE(orvane::saveFilters(), QStringList(QStringLiteral("Scenes (*.mrd)")));
        QCOMPARE(extensionsIn(orvane::exportFilters().join(u' ')), modelExtensions(true));
        QVERIFY(orvane::exportFilters().contains(QStringLiteral("FBX (*.fbx)")));
        QVERIFY(orvane::exportFilters().contains(QStringLiteral("DirectX (*.x)")));
    }

    void theExportDialogAddsTheExtensionOfTheChosenFormat()
    {
        Session session(AppSettings::Mode::None);
        const std::unique_ptr<QFileDialog> dialog(orvane::makeExportDialog(nullptr, session.document()));
        QCOMPARE(dialog->nameFilters(), orvane::exportFilters());
        QCOMPARE(dialog->defaultSuffix(), QStringLiteral("glb"));
        for (const QString& filter : orvane::exportFilters()) {
            Q_EMIT dialog->filterSelected(filter);
            QCOMPARE(QStringList(dialog->defaultSuffix()), extensionsIn(filter));
        }
    }

    void theDesktopEntryListsThem()
    {
        QStringList expected{toQString(orvane::SceneFormat::mimeType)};
        for (const orvane::FileFormat& format : orvane::modelFormats)
            expected += toQString(format.mimeType);
        const QString entry = contentOf(QStringLiteral("orvane/app/desktop/orvane.desktop"));
        const QString types
            = QRegularExpression(QStringLiteral("^MimeType=(.*);$"), QRegularExpression::MultilineOption)
                  .match(entry)
                  .captured(1);
        QCOMPARE(types.split(u';'), expected);
    }

    void eachTypeIsKnownToTheDesktop()
    {
        QHash<QString, QString> extensions; // by type
        QXmlStreamReader xml(contentOf(QStringLiteral("orvane/app/desktop/orvane-formats.xml")));
        for (QString type; !xml.atEnd(); xml.readNext()) {
            if (xml.isStartElement() && xml.name() == QStringLiteral("mime-type"))
                type = xml.attributes().value(QStringLiteral("type")).toString();
            else if (xml.isStartElement() && xml.name() == QStringLiteral("glob"))
                extensions.insert(type, xml.attributes().value(QStringLiteral("pattern")).toString());
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        const QMimeDatabase desktop;
        const auto check = [&](std::string_view mimeType, std::string_view extension) {
            const QString pattern = QStringLiteral("*.") + toQString(extension);
            if (extensions.contains(toQString(mimeType)))
                return extensions.take(toQString(mimeType)) == pattern;
            return desktop.mimeTypeForName(toQString(mimeType)).globPatterns().contains(pattern);
        };
        QVERIFY(check(orvane::SceneFormat::mimeType, orvane::SceneFormat::extension));
        for (const orvane::FileFormat& format : orvane::modelFormats)
            QVERIFY2(check(format.mimeType, format.extension), format.extension.data());
        QCOMPARE(extensions.keys(), QStringList()); // none that the table doesn't have
    }

    void theDocumentationListsThem()
    {
        const QString page = contentOf(QStringLiteral("docs/files.md"));
        QStringList rows;
        static const QRegularExpression row(
            QStringLiteral("^\\|[^|]*\\| `\\..*\\|$"), QRegularExpression::MultilineOption);
        for (auto match = row.globalMatch(page); match.hasNext();)
            rows += match.next().captured();
        QStringList expected{QStringLiteral("| scene | `.mrd` | yes | yes |")};
        for (const orvane::FileFormat& format : orvane::modelFormats)
            expected += QStringLiteral("| %1 | `.%2` | yes | %3 |")
                            .arg(toQString(format.name), toQString(format.extension),
                                format.isWritable() ? QStringLiteral("yes") : QStringLiteral("no"));
        QCOMPARE(rows, expected);
    }
};

QTEST_MAIN(TestFileFormats)
#include "tst_FileFormats.moc"
