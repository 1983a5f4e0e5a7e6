#include "orvane/app/view/picture/PictureDialog.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/view/picture/ScenePicture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

PictureDialog::PictureDialog(const QSize& size, const QStringList& places, QWidget* parent)
    : QDialog(parent)
    , m_width(addSide("pictureWidth", tr("Width"), size.width()))
    , m_height(addSide("pictureHeight", tr("Height"), size.height()))
    , m_place(new QComboBox(this))
    , m_background(new QComboBox(this))
    , m_grid(new QCheckBox(tr("&Grid and axes"), this))
    , m_message(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("pictureDialog"));
    setWindowTitle(tr("Export Picture"));
    m_place->setObjectName(QStringLiteral("picturePlace"));
    m_place->setAccessibleName(tr("Seen from"));
    m_place->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const QString& place : places)
        m_place->addItem(orvane::shortLine(place));
    m_background->setObjectName(QStringLiteral("pictureBackground"));
    m_background->setAccessibleName(tr("Background"));
    m_background->addItem(tr("Transparent"), QColor(Qt::transparent));
    m_background->addItem(tr("White"), QColor(Qt::white));
    m_background->addItem(tr("Black"), QColor(Qt::black));
    m_grid->setObjectName(QStringLiteral("pictureGrid"));
    m_message->setObjectName(QStringLiteral("pictureMessage"));
    m_message->setWordWrap(true);
    build();
    update();
}

QSpinBox* PictureDialog::addSide(const char* name, const QString& label, int pixels)
{
    auto* const side = new QSpinBox(this);
    side->setObjectName(QLatin1String(name));
    side->setAccessibleName(label);
    side->setRange(1, ScenePicture::longestSide);
    side->setSuffix(tr(" pixels"));
    side->setValue(pixels);
    connect(side, &QSpinBox::valueChanged, this, &PictureDialog::update);
    return side;
}

void PictureDialog::build()
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* const form = new QFormLayout;
    form->setHorizontalSpacing(2 * unit);
    form->setVerticalSpacing(unit);
    form->addRow(tr("&Width:"), m_width);
    form->addRow(tr("&Height:"), m_height);
    form->addRow(tr("&Seen from:"), m_place);
    form->addRow(tr("&Background:"), m_background);
    form->addRow(QString(), m_grid);
    auto* const box = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_export = box->addButton(tr("&Export…"), QDialogButtonBox::AcceptRole);
    m_export->setObjectName(QStringLiteral("pictureExport"));
    m_export->setDefault(true);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    layout->setSpacing(2 * unit);
    layout->addLayout(form);
    layout->addWidget(m_message);
    layout->addStretch();
    layout->addWidget(box);
    resize(fontMetrics().averageCharWidth() * 52, sizeHint().height());
}

void PictureDialog::update()
{
    if (m_export == nullptr) // while the dialog is built
        return;
    const bool isUsable = ScenePicture::isUsableSize(size());
    m_message->setText(isUsable
            ? tr("%1 million pixels").arg(locale().toString(size().width() * 1e-6 * size().height(), 'f', 1))
            : tr("Too large: %1.").arg(ScenePicture::sizeLimits()));
    QPalette colors = palette();
    const QColor window = colors.color(QPalette::Window);
    colors.setColor(QPalette::WindowText,
        isUsable ? orvane::look::quietColor(colors.color(QPalette::WindowText), window)
                 : orvane::look::textColor(orvane::look::Tint::Error, window));
    m_message->setPalette(colors);
    m_export->setEnabled(isUsable);
    m_export->setToolTip(isUsable ? QString() : m_message->text());
}

QSize PictureDialog::size() const
{
    return {m_width->value(), m_height->value()};
}

int PictureDialog::place() const
{
    return m_place->currentIndex();
}

QColor PictureDialog::background() const
{
    return m_background->currentData().value<QColor>();
}

bool PictureDialog::hasGrid() const
{
    return m_grid->isChecked();
}
