#include "orvane/sdk.h"

#include <QDial>

struct Heading {
    float degrees = 0;

    friend bool readValue(meridane::TextReader& reader, Heading& heading) { return reader.readNumber(heading.degrees); }
    friend void writeValue(std::string& text, const Heading& heading) { meridane::writeValue(text, heading.degrees); }
};

class SFHeading : public orv::SingleField<Heading> {
    NX_FIELD(SFHeading)

public:
    using SingleField::SingleField;
};
NX_FIELD_SOURCE(SFHeading, NxSField, "SFHeading")

class Compass : public NxTransform {
    NX_NODE(Compass)

public:
    SFHeading heading{this, {"heading", "Where the needle points.", meridane::range(0, 360)}};
};
NX_NODE_SOURCE(Compass, NxTransform, "Compass", "A needle that points somewhere.")

class HeadingEditor final : public orv::FieldEditor<SFHeading> {
    void build() override
    {
        auto& dial = add<QDial>();
        dial.setRange(0, 359);
        dial.setWrapping(true);
        bind(
            dial, &QDial::valueChanged, [&](const Heading& heading) { dial.setValue(qRound(heading.degrees)); },
            [](int degrees) { return Heading{static_cast<float>(degrees)}; });
    }
};

class CompassEditor final : public orv::NodeEditor<Compass> {
    void build() override
    {
        addField(&Compass::heading);
        addText(tr("Children"), [](const Compass& compass) { return QString::number(compass.getNumChildren()); });
    }
};

class CompassBar final : public orv::ToolBar {
    void build() override
    {
        addButton<Compass>(tr("North"), tr("Turns the needle"), [](Compass& it) { orv::edit(it.heading, {0}); });
    }
};

ORV_PLUGIN("Compass", "1.0.0", HeadingEditor, CompassEditor, CompassBar)
