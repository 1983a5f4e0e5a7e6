#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/DvMFieldTableItemDelegate.h"
#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/list/NxMFMatrix.h"

#include <string>

namespace {

/// Paints the beginning of the list's text, and has no more of it made than a cell can show.
class BeginningDelegate final : public DvMFieldTableItemDelegate {
public:
    BeginningDelegate(DvMFMatrixWidget* owner, QObject* table)
        : DvMFieldTableItemDelegate(owner, table)
        , m_editor(owner)
    {
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override
    {
        // Digits are many pixels wide.
        paintText(painter, option, m_editor->beginning(option.rect.width()));
    }

private:
    DvMFMatrixWidget* m_editor;
};

} // namespace

DvMFMatrixWidget::DvMFMatrixWidget(const char* name)
    : DvTablePopupWidget(4, 4, name)
{
    m_handledType = NxMFMatrix::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFMatrixWidget"));
    m_name = "MFMatrix";
}

DvMFMatrixWidget::~DvMFMatrixWidget() = default;

void DvMFMatrixWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFMatrix"));
    DvTablePopupWidget::load();
    setPopupValidators(orvane::kindNumber(orvane::ValidatorKind::Float));
    m_table->setItemDelegate(new BeginningDelegate(this, m_table));
}

void DvMFMatrixWidget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFMatrix>(m_field, first, second);
}

void DvMFMatrixWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFMatrixWidget::setCellValue(int row, int /*column*/, QString /*value*/)
{
    orvane::changeRow<NxMFMatrix>(m_field, row, [this](VbMatrix& matrix) {
        for (std::size_t index = 0; index < m_popupEdits.size(); ++index)
            matrix[index / 4][index % 4] = orvane::numberIn(m_popupEdits[index]);
    });
}

QString DvMFMatrixWidget::getCellValue(int /*row*/, int /*column*/)
{
    if (m_field == nullptr)
        return {};
    VbString text;
    m_field->get(text);
    return orvane::toQString(text);
}

QString DvMFMatrixWidget::beginning(int characters)
{
    if (m_field == nullptr)
        return {};
    if (m_beginningRevision == fieldRevision() && m_beginning.size() >= characters)
        return m_beginning;
    std::string text;
    std::size_t position = 0;
    while (m_field->writeText(text, position, 1) && static_cast<int>(text.size()) < characters) { }
    m_beginning = QString::fromLatin1(text);
    m_beginningRevision = fieldRevision();
    return m_beginning;
}

int DvMFMatrixWidget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFMatrixWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFMatrix::getClassTypeId());
}

QString DvMFMatrixWidget::getPopupCellValue(int row, int index)
{
    const NxMFMatrix* const list = orvane::listAs<NxMFMatrix>(m_field);
    if (list == nullptr || !orvane::hasRow(*list, row))
        return {};
    const auto position = static_cast<std::size_t>(index);
    const VbMatrix& matrix = (*list)[row];
    // Contract: the first four lines show the first element of each row, the others their own element.
    return orvane::numberText(index < 4 ? matrix[position][0] : matrix[position / 4][position % 4]);
}
