#pragma once

#include <QString>

class QAction;
class SettingsStore;

namespace orvane {

/// Checks the action while the setting is on, now and later, and sets it when the user switches the action.
void followSwitch(SettingsStore& store, const QString& key, QAction* action);
/// Checks the action, one of a group, while the setting has the value, now and later, and sets it when the user chooses
/// the action.
void followChoice(SettingsStore& store, const QString& key, const QString& value, QAction* action);

} // namespace orvane
