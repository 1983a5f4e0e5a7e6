#include "orvane/app/settings/SettingActions.h"

#include "orvane/app/settings/SettingsStore.h"

#include <QAction>

void orvane::followSwitch(SettingsStore& store, const QString& key, QAction* action)
{
    action->setCheckable(true);
    store.follow(key, action, [&store, key, action] { action->setChecked(store.isOn(key)); });
    QObject::connect(action, &QAction::triggered, &store, [&store, key](bool isOn) { store.set(key, isOn); });
}

void orvane::followChoice(SettingsStore& store, const QString& key, const QString& value, QAction* action)
{
    action->setCheckable(true);
    store.follow(key, action, [&store, key, value, action] {
        if (store.text(key) == value)
            action->setChecked(true);
    });
    QObject::connect(action, &QAction::triggered, &store, [&store, key, value] { store.set(key, value); });
}
