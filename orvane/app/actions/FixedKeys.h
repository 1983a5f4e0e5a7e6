#pragma once

#include <QList>
#include <QString>

namespace orvane {

/// A key that belongs to a part of the window and can't be changed.
struct FixedKey {
    QString place;
    QString text;
    QString keys;
};

/// The keys of tree, view, tables and lists that aren't those of actions.
[[nodiscard]] QList<FixedKey> fixedKeys();

} // namespace orvane
