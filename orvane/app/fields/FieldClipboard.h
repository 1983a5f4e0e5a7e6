#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/fields/values/FieldSet.h"

#include <QString>

#include <memory>
#include <span>
#include <string>
#include <vector>

class FieldWriter;
class NxField;
class QMimeData;

/// Fields on the clipboard: as plain text, whole, and in the tool's own form, which also has their names and types.
namespace orvane {

/// What the tool's own form is called.
[[nodiscard]] QString fieldMimeType();

/// A field on the clipboard.
struct ClipboardField {
    QString name;
    QString type;
    std::string text; ///< the text form of the value
    bool isIgnored = false;
};

/// One value. Its plain text is the text form, and for a text field the text itself.
[[nodiscard]] std::unique_ptr<QMimeData> valueMimeData(const NxField& field);
/// Several fields. Their plain text has a line `name = value` for each, with `ignored` in front where it is.
[[nodiscard]] std::unique_ptr<QMimeData> fieldsMimeData(std::span<const NxField* const> fields);

/// The fields in the tool's own form, or in lines of plain text; empty if there are none.
[[nodiscard]] std::vector<ClipboardField> clipboardFields(const QMimeData& data);

/// Sets the fields of a row to the value on the clipboard. The failure says why it isn't one for them.
Result<> pasteValue(FieldWriter& writer, const FieldSet& fields, const QMimeData& data);

/// Sets all rows whose names and types are on the clipboard, as one step. Fields that no row has are named by the
/// result, in a sentence for the user, which is empty if all were pasted. If one can't be set, none is.
[[nodiscard]] Result<QString> pasteFields(
    FieldWriter& writer, std::span<const FieldSet> rows, const QMimeData& data, const QString& nodes);

} // namespace orvane
