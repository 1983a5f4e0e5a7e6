#include "orvane/app/language/FollowLanguage.h"

#include "orvane/app/language/LanguageWatch.h"

#include <utility>

void orvane::followLanguage(QObject* owner, std::function<void()> setTexts)
{
    setTexts();
    if (LanguageWatch* const watch = LanguageWatch::ofApplication(); watch != nullptr)
        QObject::connect(watch, &LanguageWatch::changed, owner, std::move(setTexts));
}
