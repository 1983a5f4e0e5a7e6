#include "orvane/app/language/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QLocale>
#include <QPointer>
#include <QReadWriteLock>
#include <QTranslator>

#include <memory>
#include <utility>

// The application's library is linked into the program, which finds resources of such a library when it is told of
// them.
static void initializeTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace orvane {

namespace {

const QString english = QStringLiteral("en");
const QString folder = QStringLiteral(":/orvane/translations");

/// The texts of the program and those of Qt as one translator, so that a switch is one event.
class Texts : public QTranslator {
public:
    using QTranslator::QTranslator;

    void load(const QString& code)
    {
        auto own = std::make_unique<QTranslator>();
        auto ofQt = std::make_unique<QTranslator>();
        if (code != english) {
            static_cast<void>(own->load(QStringLiteral("orvane_") + code, folder));
            // Not every language has them.
            static_cast<void>(ofQt->load(QStringLiteral("qtbase_") + code, folder));
        }
        const QWriteLocker locker(&m_lock);
        m_code = code;
        m_own = std::move(own);
        m_qt = std::move(ofQt);
    }

    [[nodiscard]] QString code() const { return m_code; }

    [[nodiscard]] QString translate(
        const char* context, const char* source, const char* disambiguation, int count) const override
    {
        const QReadLocker locker(&m_lock);
        const QString text = m_own->translate(context, source, disambiguation, count);
        return text.isEmpty() ? m_qt->translate(context, source, disambiguation, count) : text;
    }

    [[nodiscard]] bool isEmpty() const override
    {
        const QReadLocker locker(&m_lock);
        return m_own->isEmpty() && m_qt->isEmpty();
    }

private:
    mutable QReadWriteLock m_lock; // threads ask for texts of messages meanwhile
    QString m_code = english;
    std::unique_ptr<QTranslator> m_own = std::make_unique<QTranslator>();
    std::unique_ptr<QTranslator> m_qt = std::make_unique<QTranslator>();
};

QPointer<Texts>& installedTexts()
{
    static QPointer<Texts> texts;
    return texts;
}

} // namespace

QStringList Language::codes()
{
    initializeTranslations();
    QStringList codes{english};
    const QString prefix = QStringLiteral("orvane_");
    const QStringList files = QDir(folder).entryList({prefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        codes.append(file.mid(prefix.size()).chopped(3));
    return codes;
}

QString Language::name(const QString& code)
{
    // Not that of the country, as in "American English".
    QString name = code == english ? QStringLiteral("English") : QLocale(code).nativeLanguageName();
    return name.isEmpty() ? code : name;
}

QStringList Language::systemLanguages()
{
    // As for the messages of other programs: in the locale C the variable LANGUAGE has no meaning.
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString locale = qEnvironmentVariable(variable);
        if (locale.isEmpty())
            continue;
        const QString language = locale.section(u'.', 0, 0);
        if (language == QLatin1String("C") || language == QLatin1String("POSIX"))
            return {};
        break;
    }
    return QLocale::system().uiLanguages();
}

QString Language::resolved(const QString& choice, const QStringList& wanted)
{
    const QStringList known = codes();
    if (known.contains(choice))
        return choice;
    if (choice != system)
        return english;
    for (const QString& language : wanted) {
        QString code = language;
        code.replace(u'-', u'_');
        if (known.contains(code))
            return code;
        code = code.section(u'_', 0, 0);
        if (known.contains(code))
            return code;
    }
    return english;
}

void Language::use(const QString& choice)
{
    const QString code = resolved(choice);
    if (code == current())
        return;
    QPointer<Texts>& texts = installedTexts();
    const bool isNew = texts.isNull();
    if (isNew)
        texts = new Texts(QCoreApplication::instance());
    texts->load(code);
    if (isNew) {
        QCoreApplication::installTranslator(texts); // which sends the event
        return;
    }
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}

QString Language::current()
{
    const QPointer<Texts>& texts = installedTexts();
    return texts.isNull() ? english : texts->code();
}

} // namespace orvane
