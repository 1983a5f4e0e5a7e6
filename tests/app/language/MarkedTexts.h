#pragma once

#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

/// A language that marks all texts which a translation can have: «like this». Texts that aren't translated, and those
/// that lupdate doesn't find in the sources under the context they have at run time, stay without marks.
class MarkedTexts : public QTranslator {
public:
    /// Reads the sources. What has failed, or empty.
    QString readSources()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("texts.ts"));
        QProcess lupdate;
        lupdate.setWorkingDirectory(QStringLiteral(KAL_SOURCE_FOLDER));
        lupdate.start(QStringLiteral(KAL_LUPDATE),
            {QStringLiteral("-I"), QStringLiteral("."), QStringLiteral("-locations"), QStringLiteral("none"),
                QStringLiteral("orvane/app"), QStringLiteral("orvane/extender"), QStringLiteral("orvane/sdk"),
                QStringLiteral("orvane/import"), QStringLiteral("-ts"), file});
        if (!lupdate.waitForFinished(-1) || lupdate.exitCode() != 0)
            return lupdate.errorString() + QString::fromUtf8(lupdate.readAllStandardError());
        QFile texts(file);
        if (!texts.open(QIODevice::ReadOnly))
            return texts.errorString();
        QXmlStreamReader reader(&texts);
        QString context;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == QLatin1String("name"))
                context = reader.readElementText();
            else if (reader.name() == QLatin1String("source"))
                m_known.insert(key(context, reader.readElementText()));
        }
        return reader.hasError() ? reader.errorString() : QString();
    }

    [[nodiscard]] qsizetype count() const { return m_known.size(); }

    [[nodiscard]] QString translate(
        const char* context, const char* source, const char* /*disambiguation*/, int /*count*/) const override
    {
        const QString text = QString::fromUtf8(source);
        // Qt has translations of its own texts.
        const bool isKnown = context[0] == 'Q' || m_known.contains(key(QString::fromUtf8(context), text));
        return isKnown && !text.isEmpty() ? u'«' + text + u'»' : QString();
    }

    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    static QString key(const QString& context, const QString& text) { return context + u'\n' + text; }

    QSet<QString> m_known;
};
