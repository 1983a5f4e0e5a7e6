#pragma once

#include <QString>
#include <QStringList>

namespace orvane {

/// The language of the program's texts. English is in the sources; the other languages, with Qt's own texts, are in the
/// program's resources. How numbers and dates are written is another choice, that of the desktop.
class Language {
public:
    /// The choice of the language of the desktop.
    static constexpr QLatin1String system{"system"};

    /// The codes of all languages there are, such as "de": English first, then the others in their order.
    [[nodiscard]] static QStringList codes();
    /// The name of a language in that language, such as "Deutsch".
    [[nodiscard]] static QString name(const QString& code);
    /// The languages that the desktop asks for, the preferred one first, such as "de-AT" or "en". None for the locale
    /// C.
    [[nodiscard]] static QStringList systemLanguages();
    /// The code for what the user chose: a code or `system`, which takes the first of `wanted` that there is. English
    /// if there is none, or if nobody knows the choice.
    [[nodiscard]] static QString resolved(const QString& choice, const QStringList& wanted = systemLanguages());

    /// Translates all texts into the language of that choice from now on, and lets those that are shown follow (see
    /// `followLanguage`). Needs the application object; on its thread.
    static void use(const QString& choice);
    /// The code of the language in use.
    [[nodiscard]] static QString current();
};

} // namespace orvane
